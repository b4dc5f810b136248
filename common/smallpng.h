#pragma once

#include <QByteArray>
#include <QImage>

/// PNG files of the kind that thumbnails are: eight bits a channel, grey or colour, with or without
/// alpha, not interlaced, not large. Reads them in two thirds of the time that the general reader
/// needs, to the same pixels in the same format. Any thread.
namespace SmallPng {

constexpr int MostBytes = 256 * 1024; ///< of a file; also bounds what a hostile one can blow up to

bool isPng(const QByteArray &beginning);
/// Null for any other kind of file and for a damaged one: the general reader decides about those.
QImage read(const QByteArray &file);

} // namespace SmallPng
