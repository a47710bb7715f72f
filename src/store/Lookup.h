#pragma once

#include <QString>

#include "platform/runtime/Variant.h"

namespace akarix {

/// One-row questions that many screens ask. A missing name is one blank, a missing number 0.
QString GetName(const QString& table, const Variant& code);
void GetNameAndNoSeikyu(const QString& table, const Variant& code, QString& name, int& noSeikyu);
QString GetDealName(const Variant& code);
Currency GetHinTanka(const Variant& code);
Variant GetKensinDay(const Variant& code);
std::int32_t NextCode(const QString& table);
std::int32_t NextHaisou();
void PrevReadingDate(int year, int month, std::int32_t deal, QString& text);
QString GetContents(const QString& sql);
/// The address of a postal code, hyphen or not; empty when it is unknown.
QString AddressOfZip(const QString& zip);
/// The billing month of a date for a customer, by the closing day.
void DateToGetudo(std::int32_t deal, Date hizuke, int& nendo, int& getudo);

}  // namespace akarix
