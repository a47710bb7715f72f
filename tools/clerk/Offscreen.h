#pragma once

namespace akarix {

/// Before the application is made: lets it draw into memory where there is no display, unless the
/// environment says what it is to draw on.
void GoOffscreenWithoutDisplay();
/// Drops what Qt says about a machine without a desktop: for every window shown, that it cannot be raised or
/// resized.
void HushOffscreen();

}  // namespace akarix
