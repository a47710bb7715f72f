#pragma once

#include "toolkit/FieldTable.h"

class QVBoxLayout;

namespace akarix {

/// A bank and the post office as they stand in the user options, on one screen. Nothing else reads what is
/// kept here, and the menu's button to it is off.
class BKItaku_frm : public EntryForm {
 public:
    BKItaku_frm();
    void init();

 private:
    void addFrame(QVBoxLayout& body, const QString& caption, const FieldTable& fields);
    void save();
};

}  // namespace akarix
