#pragma once

class QEvent;
class QObject;

namespace parlate {

/// Whether the event would type the letter of an access key into a field. The access keys have been
/// asked by then: one that is left over belongs to a control that is grey, and the toolkit takes
/// the letter for text.
[[nodiscard]] bool IsLeftOverAccessKey(const QObject& receiver, const QEvent& event);

}  // namespace parlate
