#pragma once

#include <QString>

#include "platform/dao/Workspace.h"

namespace akarix {

extern Workspace* gWs;
extern Database* gDb;

/// Name of the store's file, sought in the current directory, its password and its connect text.
QString DatabaseName();
QString StorePassword();
QString ConnectText();

/// Opens the store; a damaged file is repaired and tried again without limit. Any other failure, and a file
/// that somebody else is working on alone, is told through `fail` with the ready text, and false comes back:
/// the caller ends the program.
bool OpenDb(void (*fail)(const QString& text, const QString& title));
/// Brings an older file up to date; each step's failure is dropped.
void MigrateDb();
/// Closes gWs and forgets both.
void CloseDb();

}  // namespace akarix
