#pragma once

#include <QString>

// The background picture that is kept beside the program, to be there after a restart. Its
// format is told by its content.
namespace PictureStore {

QString path();

// Takes a copy of this file, in another thread, since the disk may be slow. Whatever happens
// meanwhile, the earlier picture or the new one is there; the earlier one stays where not
// everything can be read or written.
void keep(const QString &file);

// The file that holds the picture to keep: while the copy is being made, its source.
QString current();

// Returns once every copy is made.
void finish();

} // namespace PictureStore
