#pragma once

#include <QFont>
#include <QPalette>

namespace parlate {

enum class ColorScheme { Light, Dark };

/// The font of the lists: "MS Sans Serif", size 8, or what comes nearest on this machine.
[[nodiscard]] QFont ListFont();

/// The scheme that the environment variable PARLATE_PALETTE asks for ("light" or "dark"), or else
/// that of `system`: dark if its text is lighter than what it stands on.
[[nodiscard]] ColorScheme SchemeFor(const QPalette& system);

/// Every role in every state, so that no colour of the other scheme is left over.
[[nodiscard]] QPalette PaletteFor(ColorScheme scheme);

/// Gives the program its look: style, palette, tool tips, and a font where the system has none of
/// its own. To be called once, with the application made and before its first window.
void ApplyLook();

}  // namespace parlate
