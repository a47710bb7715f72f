#pragma once

#include <QString>
#include <map>

namespace akarix::month {

struct Desk;

// Movements that the steps have in common.

/// Presses a button of the menu board; the screen named is then in front.
void openFromMenu(Desk& desk, int button, const QString& form);
void closeForm(Desk& desk, const QString& form);
/// Walks the fields of the screen in front by Enter up to the control named, typing what is given by field.
/// Raises Failure when the walk does not lead there.
void walkTo(Desk& desk, const QString& end, const std::map<QString, QString>& texts);
/// Raises Failure unless the control has the keyboard.
void requireFocus(Desk& desk, const QString& control);
/// A picture of a screen by its name.
void takeForm(Desk& desk, const QString& picture, const QString& form);
/// The next dialog is kept as a picture and then left by a key.
void expectPictured(Desk& desk, const QString& dialog, const QString& picture, int key);
/// Presses a button that asks for a file's name, and names it. Raises Failure when no file comes of it.
/// \param picture of the question; none when empty
void saveAs(Desk& desk, const QString& button, const QString& path, const QString& picture = {});
void requireFile(const QString& path);

}  // namespace akarix::month
