#pragma once

#include <QByteArray>
#include <QString>

namespace akarix {

/// The ANSI code page of a Japanese system (Windows-31J). A character without a place becomes "?", or
/// "??" where it takes a pair of UTF-16, a byte
/// that stands for nothing "・".
/// Mapping: ICU's ibm-943_P15A-2003 (alias windows-31j), with the control characters straight; ～ ① ㈱ 髙
/// survive both ways.
QByteArray ToCodePage932(const QString& text);
/// The first half of a character, left at the end by a cut, is dropped.
QString FromCodePage932(const QByteArray& bytes);
/// Bytes the text takes in that code page.
int ByteLength932(const QString& text);

}  // namespace akarix
