#pragma once

#include <QStringList>

class Stage;

/// Every page and view of the content area, by name.
namespace Pages {

QStringList names();
/// Brings the stage into the state that shows \a page.
void prepare(const QString &page, Stage &stage);

} // namespace Pages
