#pragma once

#include "desktop/PrinterSettings.h"

#include <QDebug>
#include <ostream>

namespace quillon {

// Readable failure messages for printer settings.
inline void PrintTo(const PrinterSettings &s, std::ostream *os)
{
    QString text;
    QDebug(&text).nospace() << "{format " << s.outputFormat << ", printer " << s.printerName << ", file "
                            << s.outputFileName << ", " << s.pageSize.name() << ", orientation "
                            << s.orientation << ", margins " << s.margins << " unit " << s.marginUnits
                            << ", copies " << s.copies << ", collate " << s.collateCopies << ", colour "
                            << s.colorMode << ", duplex " << s.duplex << ", order " << s.pageOrder
                            << ", source " << s.paperSource << ", full page " << s.fullPage << "}";
    *os << text.toStdString();
}

} // namespace quillon
