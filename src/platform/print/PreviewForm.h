#pragma once

#include <memory>

#include "platform/print/EscapableForm.h"
#include "platform/print/PrintJob.h"

namespace akarix {

class CommandButton;

/// A window that shows pages of a run. Where more may follow, Enter and closing it go on to them, and "Stop"
/// or Esc show no more.
class PreviewForm : public EscapableForm {
 public:
    /// Shows a form on the heap. False when the operator wants to see no more.
    static bool Run(PreviewForm* form);

 protected:
    PreviewForm(const QString& name, const QString& caption, PreviewPlace place);

    const PreviewPlace& place() const { return place_; }
    /// The button that goes on (closes the window), and 中止; null where nothing follows.
    CommandButton* closeButton() const { return close_; }
    CommandButton* stopButton() const { return stop_; }

    void keyPressEvent(QKeyEvent* event) override;

 private:
    void stop();

    PreviewPlace place_;
    std::shared_ptr<bool> stopped_ = std::make_shared<bool>(false);
    CommandButton* close_;
    CommandButton* stop_ = nullptr;
};

}  // namespace akarix
