#include "dialogs/DialogLayout.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"

namespace akarix {

void LayOutDialog(Form& form, Icon icon, const QString& pictureName, QWidget& words, CommandButton* button) {
    constexpr int pictureSize = 40;
    constexpr int leastWidth = 320;
    Image& picture = Named(new Image, pictureName);
    picture.setPixmap(DrawIcon(icon, pictureSize, &form));

    auto* upper = new QHBoxLayout;
    upper->setSpacing(16);
    upper->addWidget(&picture, 0, Qt::AlignTop);
    upper->addWidget(&words, 1, Qt::AlignVCenter);
    auto* whole = new QVBoxLayout(&form);
    whole->setContentsMargins(20, 18, 20, 16);
    whole->setSpacing(16);
    whole->addLayout(upper);
    if (button != nullptr) whole->addWidget(button, 0, Qt::AlignRight);
    words.setMinimumWidth(leastWidth - pictureSize);
}

}  // namespace akarix
