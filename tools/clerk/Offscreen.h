#pragma once

namespace akarix {

/// Before the application is made: lets it draw into memory where there is no display, unless the
/// environment says what it is to draw on.
void GoOffscreenWithoutDisplay();
/// The same whatever there is: a desk of three screens side by side, a large one, on which windows open, and
/// the two smallest that the screens are made for: 1024x768 and 1366x768 at 125 %. What Qt says about a
/// machine without a desktop, for every window shown that it cannot be raised or resized, is dropped.
void GoOffscreen();

}  // namespace akarix
