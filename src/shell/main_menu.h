#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/runtime/Literals.h"

namespace akarix {

/// The first and last screen: a board of buttons that open the others.
class main_menu : public Form {
 public:
    main_menu();

    /// The whole start: second-instance test, splash, store, settings, login, board. False when the program
    /// is to end: a second instance, a store that does not open, a wrong password.
    static bool Start();

 protected:
    void QueryUnload(bool& cancel) override;
    void MouseDown(int shift) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

 private:
    void buildBoard();
    void Command_Click(int index);
    void ChangePassword();

    ControlArray<CommandButton> Command_{u"Command"_s};
    QSizeF previousSize_;
    bool activated_ = false;
};

}  // namespace akarix
