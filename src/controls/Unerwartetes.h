// Failures that nobody reckoned with, such as a lack of memory: the user is told, and the program
// goes on.
#pragma once

namespace altardienst {

/// What the event was about in which a failure came up.
enum class Anlaß {
    Benutzer,  // a key, the mouse: what he does again may be told again
    VonSelbst, // a timer, a repaint: comes again at once, so that each cause is told only once
};

/// In a `catch` block: tells the failure that was caught, whatever it is, as soon as the event is
/// over; never within it, where a window may be half drawn. A cause that is waiting to be told, or
/// is being told, is not told twice; several causes are told one after the other.
void UnerwartetesMelden(Anlaß anlaß = Anlaß::Benutzer) noexcept;

/// Tells what is waiting. Runs by itself after the event.
void UnerwartetesZeigen();

} // namespace altardienst
