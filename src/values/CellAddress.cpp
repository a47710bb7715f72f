#include "values/CellAddress.h"

namespace akarix {

namespace {

constexpr int kLetters = 26;

int distance(QChar letter) {
    return letter.unicode() - u'A';
}

QChar letter(int number) {
    return QChar(u'A' + number);
}

int columnNumber(const QString& column) {
    const int last = distance(column.back());
    return column.size() > 1 ? (distance(column.front()) + 1) * kLetters + last : last;
}

}  // namespace

QString CellAddress(const QString& column, int row, int columnOffset, int rowOffset) {
    const int number = columnNumber(column) + columnOffset;
    QString address;
    if (number / kLetters != 0) address += letter(number / kLetters - 1);
    address += letter(number % kLetters);
    return address + QString::number(row + rowOffset);
}

}  // namespace akarix
