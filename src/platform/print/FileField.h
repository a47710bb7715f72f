#pragma once

#include <QWidget>

namespace akarix {

class CommandButton;
class Label;
class TextBox;

/// A box for the file to write, with "参照..." beside it and a line below that says what is wrong with it.
/// Controls by object name: "Path", "Browse", "Message".
class FileField : public QWidget {
 public:
    /// \param suffix without the point, e.g. "pdf"; a typed name without one gets it.
    FileField(const QString& path, const QString& suffix, QWidget* parent = nullptr);

    TextBox* box() const { return path_; }
    CommandButton* browse() const { return browse_; }

    /// The absolute path when it can be written. Otherwise empty, and the line says why. An existing file is
    /// given only when it is asked for twice in a row, or was chosen (and confirmed) through "参照...".
    QString accepted();
    void chooseFile();
    void clearMessage();

 private:
    QString absolutePath() const;

    QString suffix_;
    QString mayOverwrite_;
    TextBox* path_;
    CommandButton* browse_;
    Label* message_;
};

}  // namespace akarix
