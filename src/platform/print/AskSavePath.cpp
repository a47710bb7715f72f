#include "platform/print/AskSavePath.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <memory>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"
#include "platform/print/EscapableForm.h"
#include "platform/print/FileField.h"
#include "platform/print/FileName.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

class SaveAs_frm : public EscapableForm {
 public:
    SaveAs_frm(const QString& caption, const QString& path, std::shared_ptr<QString> answer)
        : EscapableForm(u"SaveAs_frm"_s, caption), answer_(std::move(answer)) {
        file_ = new FileField(path, QFileInfo(path).suffix(), this);
        auto* save = new CommandButton(u"保存"_s, this, ButtonWeight::Keeps);
        auto* cancel = new CommandButton(u"キャンセル"_s, this);
        save->setObjectName(u"Save"_s);
        cancel->setObjectName(u"Cancel"_s);

        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        buttons->addWidget(save);
        buttons->addWidget(cancel);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(new Label(u"保存するファイル"_s, this));
        layout->addWidget(file_);
        layout->addLayout(buttons);

        on(file_->box(), &TextBox::KeyDown, [this](KeyEvent& event) {
            if (event.KeyCode == key::Return) {
                event.KeyCode = 0;
                this->save();
            }
        });
        on(file_->browse(), &CommandButton::Click, [this] { file_->chooseFile(); });
        on(save, &CommandButton::Click, [this] { this->save(); });
        on(cancel, &CommandButton::Click, [this] { Unload(); });
        file_->box()->setFocus();
        file_->box()->selectAll();
    }

 private:
    void save() {
        const QString path = file_->accepted();
        if (path.isEmpty()) return;
        *answer_ = path;
        Unload();
    }

    FileField* file_;
    std::shared_ptr<QString> answer_;
};

}  // namespace

QString AskSavePath(const QString& caption, const QString& name) {
    const auto answer = std::make_shared<QString>();
    auto* form =
        new SaveAs_frm(caption, FreePath(QDir(DocumentFolder()).filePath(SafeFileName(name))), answer);
    form->ShowModal();
    return *answer;
}

}  // namespace akarix
