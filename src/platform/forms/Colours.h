#pragma once

#include <QColor>

namespace akarix::colours {

// Cool greys for what stands still, one warm tint for where the keyboard is: the eye finds it at once on a
// screen of thirty fields, and after eight hours nothing glares.
inline const QColor kWindow(0xee, 0xf1, 0xf3);
inline const QColor kInk(0x1f, 0x27, 0x2e);
inline const QColor kQuiet(0x56, 0x62, 0x6c);  // notes: behind the fields, yet read without effort
inline const QColor kFaint(0x8b, 0x95, 0x9d);
inline const QColor kBorder(0x9c, 0xa8, 0xb1);
inline const QColor kAccent(0x1f, 0x6f, 0xa8);
inline const QColor kHead(0xd9, 0xe3, 0xea);
inline const QColor kButton(0xfb, 0xfc, 0xfd);
inline const QColor kButtonHover(0xef, 0xf6, 0xfb);
inline const QColor kButtonDown(0xcf, 0xe0, 0xec);
inline const QColor kFocusTint(0xff, 0xf8, 0xdc);
inline const QColor kRowTint(0xe3, 0xf0, 0xf8);
inline const QColor kAccentInk(0x14, 0x52, 0x80);
inline const QColor kDanger(0xa3, 0x2c, 0x2c);  // what takes data away
inline const QColor kDangerLine(0xcf, 0x9a, 0x97);
inline const QColor kMarkLine(0x72, 0x80, 0x8a);  // small things need a stronger edge than fields
inline const QColor kCard(0xf6, 0xf8, 0xfa);      // a group of fields on the window
inline const QColor kLine(0xd5, 0xdc, 0xe2);      // between cells, around groups

}  // namespace akarix::colours
