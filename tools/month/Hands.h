#pragma once

#include <QStringList>
#include <cstdint>
#include <map>

namespace akarix::month {

struct Desk;
struct Options;

// Movements that the steps have in common.

/// Presses a button of the menu board; the screen named is then in front.
void OpenFromMenu(Desk& desk, int button, const QString& form);
void CloseForm(Desk& desk, const QString& form);
/// Loads a customer, types what is given by field, changes the ticks named and saves.
void ChangeCustomer(Desk& desk, std::int32_t deal, const std::map<QString, QString>& texts,
                    const QStringList& ticks = {});
/// Walks the fields of the screen in front by Enter up to the control named, typing what is given by field.
/// Raises Failure when the walk does not lead there.
void WalkTo(Desk& desk, const QString& end, const std::map<QString, QString>& texts);
/// What the two boxes at a screen's top take for a billing month, counted in months from the one played.
std::map<QString, QString> MonthTyped(const Options& options, int later = 0);
/// Raises Failure unless the control has the keyboard.
void RequireFocus(Desk& desk, const QString& control);
/// A picture of a screen by its name.
void TakeForm(Desk& desk, const QString& picture, const QString& form);
/// The next dialog is kept as a picture and then left by a key.
void ExpectPictured(Desk& desk, const QString& dialog, const QString& picture, int key);
/// Presses a button that asks for a file's name, and names it. Raises Failure when no file comes of it.
/// \param picture of the question; none when empty
void SaveAs(Desk& desk, const QString& button, const QString& path, const QString& picture = {});
/// The next dialog is the printers'; the file, the last of them, is chosen and named.
/// \param picture of the dialog; none when empty
void ExpectPrinter(Desk& desk, const QString& path, const QString& picture = {});
/// Presses a button that asks for a printer and prints into a file.
void PrintInto(Desk& desk, const QString& button, const QString& path, const QString& picture = {});
void RequireFile(const QString& path);

}  // namespace akarix::month
