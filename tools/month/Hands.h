#pragma once

#include <map>

#include "month/Desk.h"
#include "platform/forms/FlexGrid.h"
#include "platform/forms/Form.h"
#include "platform/runtime/Literals.h"

namespace akarix::month {

// Movements that the steps have in common.

/// What is typed, by the name of the control.
using Texts = std::map<QString, QString>;

/// "ebox(3)"
QString Ebox(int index);
/// What the two boxes at a screen's top take for a billing month, counted in months from the one played, and
/// what is typed beside.
Texts MonthTyped(const Options& options, int later = 0, Texts more = {});

/// Presses a button of the menu board; the screen named is then in front.
void OpenFromMenu(Desk& desk, int button, const QString& form);
void CloseForm(Desk& desk, const QString& form);
/// Walks the fields of the screen in front by Enter up to the control named, typing what is given by field.
/// Raises Failure when the walk does not lead there.
void WalkTo(Desk& desk, const QString& end, const Texts& texts);
/// Walks the screen in front to its saving button, takes its picture, saves and closes it.
void FinishForm(Desk& desk, const QString& form, const QString& save, const Texts& texts,
                const QString& picture);
/// The same for a screen that the menu opens.
void KeepForm(Desk& desk, int button, const QString& form, const QString& save, const Texts& texts,
              const QString& picture);
/// Loads a customer, types what is given by field, changes the ticks named and saves.
void ChangeCustomer(Desk& desk, std::int32_t deal, const Texts& texts, const QStringList& ticks = {});
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
