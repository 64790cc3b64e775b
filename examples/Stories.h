#pragma once

#include <string_view>

#include "Script.h"

namespace parlate::example {

/// Who the player is on Lantern Quay.
inline constexpr std::string_view kWren = "Wren";

inline constexpr std::string_view kOrrin = "Orrin";
inline constexpr std::string_view kZelie = "Zélie";
inline constexpr std::string_view kNettle = "Nettle";
inline constexpr std::string_view kQuill = "Quill";
inline constexpr std::string_view kBrack = "Brack";
inline constexpr std::string_view kPepper = "Pepper";
inline constexpr std::string_view kIngram = "Ingram";
inline constexpr std::string_view kTelegraph = "TideTelegraph";

/// The lamp house: the old lamp-lighter and the first evening.
void WriteLampHouse(Script& script);
/// The ferry, and why it is never on time.
void WriteFerry(Script& script);
/// The net sheds, where lamps go out for money.
void WriteNetSheds(Script& script);
/// The clock tower.
void WriteTower(Script& script);
/// The rest of the quay: the constable, the child, the rock and the telegraph.
void WriteQuayside(Script& script);

/// A small file in which much is wrong, to show how that looks.
void WriteBrokenLabels(Script& script);

}  // namespace parlate::example
