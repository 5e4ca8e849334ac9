// Failures that nobody expected, such as a lack of memory: the user is told, and the program goes
// on.
#pragma once

namespace altardienst {

/// What caused the event in which a failure came up.
enum class Anlaß {
    Benutzer,  // a key, the mouse: if he does it again, he may be told again
    VonSelbst, // a timer, a repaint: recurs at once, so each cause is shown only once
};

/// Called in a `catch` block: shows the failure that was caught, whatever it is, as soon as the
/// event is over; never during it, when a window may be half drawn. A cause that is waiting to be
/// shown, or is being shown, is not shown twice; several causes are shown one after the other.
void UnerwartetesMelden(Anlaß anlaß = Anlaß::Benutzer) noexcept;

/// Shows what is waiting. Runs by itself after the event.
void UnerwartetesZeigen();

} // namespace altardienst
