#pragma once

namespace akarix::month {

struct Desk;

// The road of a month, in its order. Each step is done by keys and clicks on the screens; one that cannot go
// on raises.
void startProgram(Desk& desk);
void keepTariff(Desk& desk);
void keepRoute(Desk& desk);
void keepCustomer(Desk& desk);
void keepGoods(Desk& desk);
void keepSettings(Desk& desk);
void keepConsignors(Desk& desk);
void shortenBranch(Desk& desk);
void printStatements(Desk& desk);
void writeRequest(Desk& desk);
void readResult(Desk& desk);
void openSheet(Desk& desk);
void typeReadings(Desk& desk);
void saveSheet(Desk& desk);
void typeSlips(Desk& desk);
void typePayments(Desk& desk);
void runBilling(Desk& desk);
void typeLateSlip(Desk& desk);
void endLease(Desk& desk);
void runBillingAgain(Desk& desk);
void showList(Desk& desk);
void printList(Desk& desk);
void exportList(Desk& desk);
void previewList(Desk& desk);
void showInvoices(Desk& desk);
void printInvoices(Desk& desk);
void drawInvoice(Desk& desk);
void showAccount(Desk& desk);
void exportAccount(Desk& desk);
void openAccountSlip(Desk& desk);
void showBalances(Desk& desk);
void showLookups(Desk& desk);
void endProgram(Desk& desk);

}  // namespace akarix::month
