#pragma once

namespace akarix::month {

struct Desk;

// The road of a month, in its order. Each step is done by keys and clicks on the screens; one that cannot go
// on raises.
void StartProgram(Desk& desk);
void KeepTariff(Desk& desk);
void KeepRoute(Desk& desk);
void KeepCustomer(Desk& desk);
void KeepGoods(Desk& desk);
void KeepSettings(Desk& desk);
void KeepConsignors(Desk& desk);
void ShortenBranch(Desk& desk);
void PrintStatements(Desk& desk);
void WriteRequest(Desk& desk);
void ReadResult(Desk& desk);
void OpenSheet(Desk& desk);
void TypeReadings(Desk& desk);
void SaveSheet(Desk& desk);
void TypeSlips(Desk& desk);
void TypePayments(Desk& desk);
void RunBilling(Desk& desk);
void TypeLateSlip(Desk& desk);
void EndLease(Desk& desk);
void RunBillingAgain(Desk& desk);
void ShowList(Desk& desk);
void PrintList(Desk& desk);
void ExportList(Desk& desk);
void PreviewList(Desk& desk);
void ShowInvoices(Desk& desk);
void PrintInvoices(Desk& desk);
void DrawInvoice(Desk& desk);
void ShowAccount(Desk& desk);
void ExportAccount(Desk& desk);
void OpenAccountSlip(Desk& desk);
void ShowBalances(Desk& desk);
void ShowLookups(Desk& desk);
void EndProgram(Desk& desk);

}  // namespace akarix::month
