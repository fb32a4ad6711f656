#pragma once

#include <QString>

// The background picture that is kept beside the program, to be there after a restart. Its
// format is told by its content.
namespace PictureStore {

QString path();

// Takes a copy of this file. Whatever happens meanwhile, the earlier picture or the new one is
// there; the earlier one stays where not everything can be read or written.
void keep(const QString &file);

} // namespace PictureStore
