#pragma once

#include <QByteArray>
#include <QString>

namespace akarix {

/// Without the blanks at both ends, at the left or at the right: half-width and ideographic ones. Tabs and
/// line breaks are no blanks.
QString Trim(const QString& text);
QString LTrim(const QString& text);
QString RTrim(const QString& text);

/// The classic conversion flags; they may be added where they do not contradict each other.
enum StrConvFlag {
    WideChars = 4,
    NarrowChars = 8,
    Katakana = 16,
};

/// Contradicting flags raise 5. Kana and their voiced marks join in full width and part in half width; "\"
/// stays when widening, "￥" becomes "\" when narrowing; hiragana stay full-width unless Katakana is asked
/// for too.
QString StrConv(const QString& text, int conversion);

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
