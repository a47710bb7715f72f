#pragma once

#include <QString>

namespace akarix {

class RuntimeError;

/// The system's own message box, with OK alone; modal.
void MsgBox(const QString& text, const QString& title);
/// The run time's error box: "実行時エラー '6':", an empty line and the description.
void ShowRuntimeError(const RuntimeError& error);

}  // namespace akarix
