#include "platform/forms/MsgBox.h"

#include <QApplication>
#include <QMessageBox>

#include "platform/forms/Icons.h"
#include "platform/forms/LineEnds.h"
#include "platform/forms/LongRun.h"
#include "platform/forms/SessionEnd.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

void ShowBox(const QString& text, const QString& title, bool failure) {
    if (SessionEnd::Requested()) return;
    const LongRun::Pause pause;
    QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok, QApplication::activeWindow());
    box.setObjectName(u"MsgBox"_s);
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    if (failure) box.setIconPixmap(DrawIcon(Icon::Stop, 36, &box));
    box.exec();
}

}  // namespace

void MsgBox(const QString& text, const QString& title) {
    ShowBox(ShownLines(text), title, false);
}

void ShowRuntimeError(const RuntimeError& error) {
    ShowBox(u"実行時エラー '%1':\n\n"_s.arg(error.number()) + error.description(), u"Akarix"_s, true);
}

}  // namespace akarix
