#include "platform/forms/MsgBox.h"

#include <QApplication>
#include <QMessageBox>

#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

void showBox(const QString& text, const QString& title, QMessageBox::Icon icon) {
    QMessageBox box(icon, title, text, QMessageBox::Ok, QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
}

}  // namespace

void MsgBox(const QString& text, const QString& title) {
    // Texts come with the carriage returns of the classic line end, which a label would print as boxes.
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    showBox(shown, title, QMessageBox::NoIcon);
}

void ShowRuntimeError(const RuntimeError& error) {
    showBox(QStringLiteral("実行時エラー '%1':\n\n").arg(error.number()) + error.description(),
            QStringLiteral("Akarix"), QMessageBox::Critical);
}

}  // namespace akarix
