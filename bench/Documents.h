#pragma once

#include <QString>
#include <array>

#include "DealerFiles.h"
#include "platform/runtime/Literals.h"

namespace akarix::bench {

/// Documents written by statements over all customers at once: what a dealer has gathered after many years.
class Documents {
 public:
    static constexpr int kMonths = 10;
    static constexpr int kLines = 3;

    /// A slip and a payment of three lines each, and a ledger row, for customers up to this code in each of
    /// the ten months that end with the dealer's: thirty lines a customer in either table.
    static void fillMonths(int lastCustomer) {
        const Action grouped;
        for (int ago = 0; ago < kMonths; ++ago)
            fillMonth(ago, lastCustomer);
    }

    /// Ten years of one customer: every month a reading, a ledger row, a slip of two lines and a payment.
    static void fillYears(int customer) {
        constexpr int kTenYears = 120;
        const Action grouped;
        for (int ago = 0; ago < kTenYears; ++ago) {
            const Month month = monthBefore(ago);
            const int dno = kOwnNumbers + ago;
            put("Dgd(Deal,Nendo,Getudo,KonkaiMeter,Suu,Gaku,Hi)",
                u"%1,12.5,5600,20"_s.arg(1000 + 12 * (kTenYears - ago)), customer, month);
            put("TtoD(Deal,Nendo,Getudo,GGaku,UGaku,Gaku,NGaku)", u"5600,1100,6700,6700"_s, customer, month);
            for (int line = 1; line <= 2; ++line) {
                put("Dud(Deal,Nendo,Getudo,Dno,Eda,Hizuke,HinNamae,Suu,Tanka,Gaku)",
                    u"%1,%2,%3,'ゴムホース',1,550,550"_s.arg(dno).arg(line).arg(dayOf(month)), customer,
                    month);
            }
            put("Dny(Deal,Nendo,Getudo,Dno,Eda,Hizuke,Gaku)", u"%1,1,%2,6700"_s.arg(dno).arg(dayOf(month)),
                customer, month);
        }
    }

 private:
    struct Month {
        int year;
        int month;
    };
    static constexpr int kSlipsOfMonth = 10000;
    static constexpr int kOwnNumbers = kMonths * kSlipsOfMonth + 1;

    static Month monthBefore(int ago) {
        const int index = kYear * 12 + kMonth - 1 - ago;
        return {index / 12, index % 12 + 1};
    }
    static QString dayOf(Month month) { return u"CDATE('%1/%2/15')"_s.arg(month.year).arg(month.month); }
    static void put(const char* columns, const QString& values, int customer, Month month) {
        gDb->Execute(u"INSERT INTO %1 VALUES(%2,%3,%4,%5)"_s.arg(QLatin1String(columns))
                         .arg(customer)
                         .arg(month.year)
                         .arg(month.month)
                         .arg(values));
    }

    static void fillMonth(int ago, int lastCustomer) {
        const Month month = monthBefore(ago);
        // The oldest month has the lowest numbers.
        const int before = (kMonths - 1 - ago) * kSlipsOfMonth;
        const auto each = [&](const QString& columns, const QString& values) {
            gDb->Execute(
                u"INSERT INTO %1 SELECT Code,%2,%3,%4 FROM Deal WHERE Code>0 AND Code<=%5"_s.arg(columns)
                    .arg(month.year)
                    .arg(month.month)
                    .arg(values)
                    .arg(lastCustomer));
        };
        for (int line = 1; line <= kLines; ++line) {
            const QString head = u"Code+%1,%2,%3"_s.arg(before).arg(line).arg(dayOf(month));
            each(u"Dud(Deal,Nendo,Getudo,Dno,Eda,Hizuke,HinCode,HinNamae,Suu,Tanka,Gaku)"_s,
                 head + u",1,'ゴムホース',2,550,1100"_s);
            each(u"Dny(Deal,Nendo,Getudo,Dno,Eda,Hizuke,Kubun,Gaku,Naiyo)"_s, head + u",1,1100,'集金'"_s);
        }
        each(u"TtoD(Deal,Nendo,Getudo,UGaku,Gaku,NGaku)"_s, u"3300,3300,3300"_s);
    }
};

}  // namespace akarix::bench
