#pragma once

#include <QString>

namespace quillon {

// The program writes file filters as "description|pattern" pairs joined by '|', the
// patterns of one pair separated by ';':
//     "Quillon Data (*.qdl)|*.qdl|All Files (*.*)|*.*"
// Qt's file dialogs filter by the patterns in parentheses at the end of each description,
// with the descriptions joined by ";;":
//     "Quillon Data (*.qdl);;All Files (*.*)"
// A description that shows no patterns gets them appended; one that shows other patterns
// than it filters by has them replaced, since Qt would otherwise filter by the shown ones.
QString toQtFileFilter(const QString &filter);

} // namespace quillon
