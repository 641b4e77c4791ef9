// What a JPEG file asks of memory beyond the picture that comes out of it.
#pragma once

#include <QtGlobal>

class QIODevice;

namespace tarvel {

/// A JPEG picture that comes in several passes, as progressive ones do, has to be held whole in
/// the form of the file until the last pass is read: this many bytes. 0 for one that comes row by
/// row, and for what is no JPEG file. Leaves the file where it was.
[[nodiscard]] qint64 jpegPassesBytes(QIODevice& file);

} // namespace tarvel
