#pragma once

#include <QString>

namespace akarix {

class CustomerAccount;
class FlexGrid;

/// What the grid of an account can be asked about a row.
struct AccountRow {
    int kind;  ///< CustomerAccount::Kind; 0 on the row of the opening balance
    QString number;
    QString date;
};

/// Titles, widths and sides of the columns; the last one, the kind, is hidden.
void DefineAccountColumns(FlexGrid& list);
/// Fills the grid with the gathered lines: the opening balance, then line by line with the balance after it.
void ShowAccount(const CustomerAccount& account, FlexGrid& list);
AccountRow ReadAccountRow(const FlexGrid& list, int row);

}  // namespace akarix
