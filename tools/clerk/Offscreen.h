#pragma once

namespace akarix {

/// Before the application is made: lets it draw into memory where there is no display, unless the
/// environment says what it is to draw on.
void GoOffscreenWithoutDisplay();
/// Drops what Qt says about windows that cannot be raised or resized, of which nobody is to know: without a
/// display it says so for every window shown.
void HushOffscreen();

}  // namespace akarix
