#include "platform/print/Printer.h"

#include <QFileInfo>
#include <QPrinterInfo>

#include "platform/print/FileName.h"

namespace akarix {

Printer& Printer::Current() {
    static Printer current;
    return current;
}

QStringList Printer::Names() {
    return QPrinterInfo::availablePrinterNames();
}

QString Printer::Name() const {
    return name_.isEmpty() ? QPrinterInfo::defaultPrinterName() : name_;
}

void Printer::UseQueue(const QString& name, int copies) {
    name_ = name;
    pdfPath_.clear();
    copies_ = copies;
}

void Printer::UsePdf(const QString& absolutePath) {
    pdfPath_ = absolutePath;
    pdfDocuments_ = 0;
    copies_ = 1;
}

QString Printer::NextPdfPath() {
    if (++pdfDocuments_ == 1) return pdfPath_;
    while (QFileInfo::exists(NumberedPath(pdfPath_, pdfDocuments_)))
        ++pdfDocuments_;
    return NumberedPath(pdfPath_, pdfDocuments_);
}

}  // namespace akarix
