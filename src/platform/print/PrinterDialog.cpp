#include "platform/print/PrinterDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QListWidget>
#include <QSpinBox>
#include <memory>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"
#include "platform/print/EscapableForm.h"
#include "platform/print/FileField.h"
#include "platform/print/FileName.h"
#include "platform/print/Printer.h"
#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {
namespace {

class Printer_frm : public EscapableForm {
 public:
    Printer_frm(const QString& document, std::shared_ptr<bool> accepted)
        : EscapableForm(u"Printer_frm"_s, u"印刷"_s), accepted_(std::move(accepted)) {
        build(SafeFileName(document) + u".pdf"_s);
        fill();
        on(printers_, &QListWidget::currentRowChanged, [this](int) { showChoice(); });
        on(printers_, &QListWidget::itemActivated, [this](QListWidgetItem*) { print(); });
        on(file_->box(), &TextBox::KeyDown, [this](KeyEvent& event) { pathKey(event); });
        on(file_->browse(), &CommandButton::Click, [this] { file_->chooseFile(); });
        on(print_, &CommandButton::Click, [this] { print(); });
        on(cancel_, &CommandButton::Click, [this] { Unload(); });
        showChoice();
        printers_->setFocus();
    }

 protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            print();
        else
            EscapableForm::keyPressEvent(event);
    }

 private:
    void build(const QString& fileName) {
        printers_ = new QListWidget(this);
        printers_->setObjectName(u"Printers"_s);
        printers_->setMinimumHeight(Twips(1800));
        copies_ = new QSpinBox(this);
        copies_->setObjectName(u"Copies"_s);
        copies_->setRange(1, 99);
        const Printer& current = Printer::Current();
        copies_->setValue(current.Copies());
        const QString folder =
            current.IsPdf() ? QFileInfo(current.PdfPath()).absolutePath() : DocumentFolder();
        file_ = new FileField(FreePath(QDir(folder).filePath(fileName)), u"pdf"_s, this);
        print_ = new CommandButton(u"印刷"_s, this);
        print_->setObjectName(u"Print"_s);
        cancel_ = new CommandButton(u"キャンセル"_s, this);
        cancel_->setObjectName(u"Cancel"_s);

        auto* layout = new QGridLayout(this);
        layout->addWidget(new Label(u"プリンタ"_s, this), 0, 0, Qt::AlignTop);
        layout->addWidget(printers_, 0, 1);
        layout->addWidget(new Label(u"部数"_s, this), 1, 0);
        layout->addWidget(copies_, 1, 1, Qt::AlignLeft);
        layout->addWidget(new Label(u"ファイル"_s, this), 2, 0, Qt::AlignTop);
        layout->addWidget(file_, 2, 1);
        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        buttons->addWidget(print_);
        buttons->addWidget(cancel_);
        layout->addLayout(buttons, 3, 0, 1, 2);
        layout->setRowStretch(0, 1);
    }

    void fill() {
        const Printer& current = Printer::Current();
        const QStringList names = Printer::Names();
        printers_->addItems(names);
        printers_->addItem(u"PDF ファイル"_s);
        const auto row = current.IsPdf() ? -1 : names.indexOf(current.Name());
        printers_->setCurrentRow(row < 0 ? pdfRow() : static_cast<int>(row));
    }

    int pdfRow() const { return printers_->count() - 1; }
    bool pdfChosen() const { return printers_->currentRow() == pdfRow(); }

    void showChoice() {
        file_->setEnabled(pdfChosen());
        copies_->setEnabled(!pdfChosen());
        file_->clearMessage();
    }

    void pathKey(KeyEvent& event) {
        switch (event.KeyCode) {
            case key::Return:
                print();
                break;
            case key::Up:
                printers_->setFocus();
                break;
            case key::Down:
                print_->setFocus();
                break;
            default:
                return;
        }
        event.KeyCode = 0;
    }

    void print() {
        if (pdfChosen()) {
            const QString path = file_->accepted();
            if (path.isEmpty()) return;
            Printer::Current().UsePdf(path);
        } else {
            Printer::Current().UseQueue(printers_->currentItem()->text(), copies_->value());
        }
        *accepted_ = true;
        Unload();
    }

    QListWidget* printers_;
    QSpinBox* copies_;
    FileField* file_;
    CommandButton* print_;
    CommandButton* cancel_;
    std::shared_ptr<bool> accepted_;
};

}  // namespace

void ShowPrinter(const QString& document) {
    const auto accepted = std::make_shared<bool>(false);
    auto* form = new Printer_frm(document, accepted);
    form->ShowModal();
    if (!*accepted) throw RuntimeError(CancelledByOperator);
}

}  // namespace akarix
