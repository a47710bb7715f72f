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
    /// The queue's name; the machine's default printer as long as none was chosen. Empty when there is none.
    QString Name() const;
    const QString& PdfPath() const { return pdfPath_; }
    int Copies() const { return copies_; }

    void UseQueue(const QString& name, int copies = 1);
    void UsePdf(const QString& absolutePath);

    /// The file for the next document: the chosen path, and behind it "name (2).pdf" and so on, so that an
    /// action that prints several documents keeps them all. Of the numbers those are passed over that are
    /// taken: the operator was asked about the chosen path alone.
    QString NextPdfPath();

 private:
    QString name_;
    QString pdfPath_;
    int copies_ = 1;
    int pdfDocuments_ = 0;
};

}  // namespace akarix
