#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

class QPainter;
class QPalette;
class QRectF;

/// The program's own vector pictures. Their inks are named by two stand-in colours, so that one drawing
/// serves light and dark desktops: `#101010` becomes the palette's text, `#2f6fb0` its highlight, `#f4f6f8`
/// its base,
/// `#c9d2dc` a tone between text and background.
///
/// Draws a picture of the program (resource name without path and extension) into a box, its proportions
/// kept.
void Disegna_Vettoriale(QPainter& pittore, const QString& nome, const QRectF& riquadro,
                        const QPalette& tavolozza, QIcon::Mode modo = QIcon::Normal);
/// Width divided by height of a picture.
double Rapporto_Vettoriale(const QString& nome);
/// An icon that follows the palette's colours, crisp at every size and pixel ratio.
QIcon Icona_Tema(const QString& nome);
