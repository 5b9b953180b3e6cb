#include "FormPrintout.h"

#include "ReportPainter.h"

#include <QPointer>
#include <QWidget>

namespace quillon {

PrintJob FormPrintout(const QString &documentName, QWidget &form, PageOrientation orientation)
{
    PrintJob job;
    job.documentName = documentName;
    job.orientation = orientation;
    job.paint = [page = QPointer<QWidget>(&form)](QPagedPaintDevice &device) {
        if (!page)
            return;
        ReportPainter r(device, 0);
        r.picture(*page);
    };
    return job;
}

} // namespace quillon
