#pragma once

#include <QString>

#include "platform/forms/LongRun.h"
#include "platform/print/PrintJob.h"

namespace akarix {

/// What one press of a print button prints, from the printer's dialog to the last page: one at a time.
class PrintRun {
 public:
    /// Asks for the printer (raises 32755 when that is cancelled); the run begins behind the dialog.
    /// \param document what is printed, e.g. "請求書"
    explicit PrintRun(const QString& document);
    ~PrintRun();
    PrintRun(const PrintRun&) = delete;
    PrintRun& operator=(const PrintRun&) = delete;

    static bool UnderWay() { return current() != nullptr; }
    /// Before each of several documents. Raises 32755 when the operator wants no more; what is finished is
    /// printed. \param index from 0
    void next(int index, int count);

    /// The same within one document: `done` of `total` lines are filled. Nothing without a run.
    static void Count(int done, int total);
    /// The place of a page that is shown next. \param pagesFollow in its own document
    static PreviewPlace NextPage(bool pagesFollow);

 private:
    static PrintRun*& current();

    LongRun run_;
    int pages_ = 0;
    int document_ = 0;
    int documents_ = 1;
    int done_ = 0;
    int total_ = 0;
};

}  // namespace akarix
