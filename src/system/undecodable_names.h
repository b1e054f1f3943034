#pragma once

#include <QStringList>

namespace Hesperin {

/// The files and folders in `folder` that the toolkit can't name, and so doesn't list: their names
/// are no UTF-8, as after unpacking an archive that was made in another code page. Told as far as
/// they can be read, a folder with a slash behind it; hidden ones are left out.
QStringList UndecodableNames(const QString& folder);

} // namespace Hesperin
