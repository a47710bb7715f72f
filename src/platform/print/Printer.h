#pragma once

#include <QString>
#include <QStringList>

namespace akarix {

/// The current printer of the program: what the last printer dialog left, else the machine's default.
/// A PDF file is a printer too. Nothing is remembered over a restart.
class Printer {
 public:
    static Printer& Current();

    /// Names of the machine's printers.
    static QStringList Names();

    bool IsPdf() const { return !pdfPath_.isEmpty(); }
    const QString& Name() const { return name_; }
    const QString& PdfPath() const { return pdfPath_; }
    int Copies() const { return copies_; }

    void UseQueue(const QString& name, int copies = 1);
    void UsePdf(const QString& absolutePath);

 private:
    QString name_;
    QString pdfPath_;
    int copies_ = 1;
};

}  // namespace akarix
