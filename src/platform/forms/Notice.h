#pragma once

#include <QString>

namespace akarix {

/// Tells something that needs no answer: a line below the window the operator works at, which takes neither
/// the keyboard nor a click and goes by itself after some seconds. It comes up when the action under way has
/// ended; what one action has to tell stands in it together. For the form "Notice".
void ShowNotice(const QString& text);
/// Of what is not yet shown: the screens it spoke of are gone.
void ForgetNotices();
/// For a screen that has stored what was on it and stands empty again.
void NoticeSaved();
/// For a file the operator asked for.
void NoticeWritten(const QString& path);

}  // namespace akarix
