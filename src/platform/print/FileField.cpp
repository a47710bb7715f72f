#include "platform/print/FileField.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Control.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"
#include "platform/print/FileName.h"
#include "platform/runtime/Literals.h"

namespace akarix {

FileField::FileField(const QString& path, const QString& suffix, QWidget* parent)
    : QWidget(parent),
      suffix_(suffix),
      path_(new TextBox(this)),
      browse_(new CommandButton(u"参照..."_s, this)),
      message_(new Label(QString(), this)) {
    path_->setObjectName(u"Path"_s);
    path_->SetText(QDir::toNativeSeparators(path));
    path_->setMinimumWidth(Twips(6600));
    browse_->setObjectName(u"Browse"_s);
    message_->setObjectName(u"Message"_s);
    message_->setWordWrap(true);
    QPalette red = message_->palette();
    red.setColor(QPalette::WindowText, QColor(176, 0, 0));
    message_->setPalette(red);
    // Two lines are kept free, so that the window does not jump when the message comes.
    message_->setMinimumHeight(2 * message_->fontMetrics().lineSpacing());
    message_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(path_, 0, 0);
    layout->addWidget(browse_, 0, 1);
    layout->addWidget(message_, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);

    // A listened-to box keeps Tab from the focus chain; here it is to walk on like anywhere else.
    connect(path_, &TextBox::KeyDown, this, [this](KeyEvent& event) {
        if (event.KeyCode != key::Tab) return;
        focusNextPrevChild((event.Shift & ShiftMask) == 0);
        event.KeyCode = 0;
    });
}

QString FileField::absolutePath() const {
    QString typed = QDir::fromNativeSeparators(path_->Text().trimmed());
    if (typed.isEmpty() || typed.endsWith(QLatin1Char('/'))) return typed;
    if (QFileInfo(typed).suffix().compare(suffix_, Qt::CaseInsensitive) != 0)
        typed += QLatin1Char('.') + suffix_;
    return QDir::cleanPath(QDir(DocumentFolder()).absoluteFilePath(typed));
}

QString FileField::accepted() {
    const QString path = absolutePath();
    const QString reason = WhyNotWritable(path);
    if (!reason.isEmpty()) {
        message_->SetCaption(reason);
        return {};
    }
    if (QFileInfo::exists(path) && path != mayOverwrite_) {
        mayOverwrite_ = path;
        message_->SetCaption(u"同じ名前のファイルがあります。上書きするときは、もう一度押して下さい。"_s);
        return {};
    }
    return path;
}

void FileField::chooseFile() {
    const QString chosen =
        QFileDialog::getSaveFileName(window(), u"ファイルの保存先"_s, absolutePath(),
                                     u"%1 ファイル (*.%2)"_s.arg(suffix_.toUpper(), suffix_));
    if (chosen.isEmpty()) return;
    clearMessage();
    path_->SetText(QDir::toNativeSeparators(chosen));
    mayOverwrite_ = absolutePath();
    path_->setFocus();
}

void FileField::clearMessage() {
    message_->SetCaption(QString());
    mayOverwrite_.clear();
}

}  // namespace akarix
