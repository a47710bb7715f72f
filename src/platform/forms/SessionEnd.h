#pragma once

#include <functional>

class QWidget;

namespace akarix {

/// The end of the operator's session: SIGTERM, SIGHUP, the desktop's logout. Nobody is left to answer, so the
/// dialogs that stand are closed as by their close box, and those that come up later just the same; a long
/// run stops where it may. When no action is under way any more, the program is left.
namespace SessionEnd {

/// Listens from here on, for one end. \param leave ends the program; called from the event loop
void Await(std::function<void()> leave);
/// Asks for the end as the system does.
void Request();
bool Requested();
/// Closes a modal window in nobody's name.
void Dismiss(QWidget& window);

}  // namespace SessionEnd

}  // namespace akarix
