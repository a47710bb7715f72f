#pragma once

#include <map>
#include <vector>

#include "platform/runtime/Date.h"
#include "sample/RowWriter.h"
#include "sample/SampleCustomers.h"

namespace akarix::sample {

/// Writes month after month of documents and bills each of them.
class MonthMaker {
 public:
    MonthMaker(std::vector<Customer>& customers, Dice& dice);

    /// The balances that the customers bring into their first month, fixed by hand as when the program is
    /// taken into use.
    void openBalances(int year, int month);
    /// Readings, slips and payments of one month, then its billing run. Months follow each other.
    void make(int year, int month);

 private:
    void writeReadings(int year, int month);
    void writeReading(Customer& customer, int year, int month);
    Currency charge(const Customer& customer, Currency usage);
    void writeSlips(int year, int month);
    void writeSlip(const Customer& customer, Date day);
    void writePayments(int year, int month);
    void writePayment(const Customer& customer, int year, int month, Currency amount);
    Date paymentDay(const Customer& customer, int year, int month);
    void readBalances(int year, int month);

    std::vector<Customer>& customers_;
    Dice& dice_;
    RowWriter readings_;
    RowWriter slips_;
    RowWriter payments_;
    std::map<std::int32_t, Currency> owed_;
    std::map<std::int32_t, Currency> paidAhead_;  // past the closing day: counts for the next month
    std::map<std::pair<int, std::int64_t>, Currency> charges_;  // by tariff and use
    int exchanges_ = 0;
    std::int32_t nextSlip_ = 1;
    std::int32_t nextPayment_ = 1;
};

}  // namespace akarix::sample
