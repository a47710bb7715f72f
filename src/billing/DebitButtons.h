#pragma once

#include "debit/DebitRecords.h"
#include "debit/DebitRequest.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"

namespace akarix {

/// The disk and statement buttons of the billing screen.
class DebitButtons {
 public:
    /// What they use of the screen.
    struct Controls {
        TextBox* year;
        TextBox* month;
        TextBox* creation;
        TextBox* bank;
        // The prompt for the date on which the post office tries again.
        Label* saihiHead;
        TextBox* eSaihi;
        Label* lyobi2;
        Label* saihiHint;
        Label* Progress;
    };

    explicit DebitButtons(const Controls& controls) : on_(controls) {}

    /// The prompt away and nothing under way, as when the screen opens.
    void reset();
    void writeBank();
    /// With a contract for a second date that date is asked for first; enterRetransfer() then writes.
    void writePost();
    void enterRetransfer();
    void readBank();
    void readPost();
    void printBank();
    void printPost();

 private:
    bool creationStands() const;
    DebitWish wish() const;
    ShowProgress progress() const;
    void proposeRetransfer(const QString& dayOfMonth);
    void writePostFile();

    Controls on_;
    Date opened_;          ///< stands on the post office's statement
    RetransferDay again_;  ///< what the post office's header says of the second date
};

}  // namespace akarix
