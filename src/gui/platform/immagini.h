#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>
#include <optional>

/// The pictures of a catalogue are somebody else's files: raster formats only, nothing that could name other
/// files, and no more pixels than can be read in a moment.

/// Reads a picture file, told by its content, reduced to fit into `massimo` pixels; null when it can't be
/// read.
QImage Leggi_Immagine(const QString& file, const QSize& massimo);
/// Size of a picture file in pixels, as it is shown; none when it can't be read.
std::optional<QSizeF> Misura_File_Immagine(const QString& file);
