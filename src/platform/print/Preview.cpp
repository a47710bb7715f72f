#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/ComboBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/print/PreviewForm.h"
#include "platform/print/PreviewPages.h"
#include "platform/runtime/Literals.h"

namespace akarix {
namespace {

class Preview_frm : public PreviewForm {
 public:
    Preview_frm(const QString& title, const std::vector<PrintPage>& pages, const PreviewPlace& place)
        : PreviewForm(u"Preview_frm"_s, (u"印刷プレビュー - "_s + title + u' ' + place.page).trimmed(),
                      place) {
        pages_ = new PreviewPages(pages, this);
        pages_->setObjectName(u"Pages"_s);
        previous_ = button(u"前頁"_s, u"Previous"_s);
        next_ = button(u"次頁"_s, u"Next"_s);
        place_ = new Label(QString(), this);
        place_->setObjectName(u"Place"_s);
        auto* zoom = new ComboBox(this);
        zoom->setObjectName(u"Zoom"_s);
        zoom->AddItem(u"幅に合わせる"_s, 0);
        zoom->AddItem(u"100%"_s, 100);
        zoom->AddItem(u"150%"_s, 150);
        zoom->SetListIndex(0);

        auto* bar = new QHBoxLayout;
        bar->addWidget(previous_);
        bar->addWidget(next_);
        bar->addWidget(place_);
        bar->addStretch();
        bar->addWidget(zoom);
        bar->addWidget(closeButton());
        if (stopButton() != nullptr) bar->addWidget(stopButton());
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(bar);
        layout->addWidget(pages_, 1);
        resize(Twips(13200), Twips(11400));

        on(previous_, &CommandButton::Click, [this] { pages_->goTo(pages_->currentPage() - 1); });
        on(next_, &CommandButton::Click, [this] { pages_->goTo(pages_->currentPage() + 1); });
        on(zoom, &ComboBox::Click, [this, zoom] { pages_->setZoom(zoom->ItemData(zoom->ListIndex())); });
        on(pages_, &PreviewPages::currentPageChanged, [this](int page) { showPlace(page); });
        showPlace(0);
        pages_->setFocus();
    }

 private:
    CommandButton* button(const QString& caption, const QString& name) {
        auto* made = new CommandButton(caption, this);
        made->setObjectName(name);
        return made;
    }

    void showPlace(int page) {
        const bool alone = pages_->pageCount() == 1 && !place().page.isEmpty();
        place_->SetCaption(alone ? place().page : u"%1 / %2 頁"_s.arg(page + 1).arg(pages_->pageCount()));
        previous_->setEnabled(page > 0);
        next_->setEnabled(page + 1 < pages_->pageCount());
    }

    PreviewPages* pages_;
    CommandButton* previous_;
    CommandButton* next_;
    Label* place_;
};

}  // namespace

bool ShowPreview(const QString& title, const std::vector<PrintPage>& pages, const PreviewPlace& place) {
    return PreviewForm::Run(new Preview_frm(title, pages, place));
}

}  // namespace akarix
