#include "values/CellAddress.h"

namespace akarix {

namespace {

constexpr int kLetters = 26;

int Distance(QChar letter) {
    return letter.unicode() - u'A';
}

QChar Letter(int number) {
    return QChar(u'A' + number);
}

int ColumnNumber(const QString& column) {
    const int last = Distance(column.back());
    return column.size() > 1 ? (Distance(column.front()) + 1) * kLetters + last : last;
}

}  // namespace

QString CellAddress(const QString& column, int row, int columnOffset, int rowOffset) {
    const int number = ColumnNumber(column) + columnOffset;
    QString address;
    if (number / kLetters != 0) address += Letter(number / kLetters - 1);
    address += Letter(number % kLetters);
    return address + QString::number(row + rowOffset);
}

}  // namespace akarix
