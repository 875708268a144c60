// compare_svgs FILE...: draws each file as the canvas does and as rsvg-convert does at the same size, and
// counts those that come out the same within anti-aliasing, those that are refused, and those that differ. A
// line for each file that isn't the same. Exit code 1 if any differs.

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "canvas/disegnatore.h"

namespace {

/// A pixel differs when a channel does by more than a quarter; a picture, when more than one in a hundred
/// pixels does.
constexpr int SCARTO_CANALE = 64;
constexpr double SCARTO_IMMAGINE = .01;

double Parte_Diversa(const QImage& a, const QImage& b) {
    if (a.size() != b.size())
        return 1;
    qint64 diversi = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar *ra = a.constScanLine(y), *rb = b.constScanLine(y);
        for (int x = 0; x < a.width() * 4; x += 4)
            diversi += !std::equal(ra + x, ra + x + 4, rb + x,
                                   [](int p, int q) { return std::abs(p - q) <= SCARTO_CANALE; });
    }
    return double(diversi) / (double(a.width()) * a.height());
}

QImage Disegna(const std::shared_ptr<const Documento_Tavola>& documento, QString& rifiuto) {
    const Disegnatore disegnatore(documento);
    if (!disegnatore.Valido()) {
        rifiuto = QStringLiteral("not well-formed");
        return {};
    }
    const QSizeF pagina = documento->Pagina();
    const double scala = 256 / std::max(pagina.width(), pagina.height());
    QImage immagine((pagina * scala).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    immagine.fill(Qt::transparent);
    disegnatore.Disegna(
        {immagine.bits(), immagine.width(), immagine.height(), static_cast<int>(immagine.bytesPerLine())}, {},
        scala);
    return immagine;
}

}  // namespace

int main(int argc, char** argv) {
    QTemporaryDir cartella;
    const QString modello = cartella.filePath("reference.png");
    int uguali = 0, rifiutati = 0, diversi = 0, senza_modello = 0;
    for (int i = 1; i < argc; ++i) {
        const QString percorso = QString::fromLocal8Bit(argv[i]);
        QString rifiuto;
        const auto documento = Documento_Tavola::Da_File(percorso, &rifiuto);
        const QImage nostra = documento ? Disegna(documento, rifiuto) : QImage();
        if (nostra.isNull()) {
            ++rifiutati;
            std::printf("refused    %s: %s\n", argv[i], qPrintable(rifiuto));
            continue;
        }
        QFile::remove(modello);
        QProcess::execute("rsvg-convert", {"-w", QString::number(nostra.width()), "-h",
                                           QString::number(nostra.height()), "-o", modello, percorso});
        const QImage loro = QImage(modello).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (loro.isNull()) {
            ++senza_modello;
            std::printf("no model   %s: the converter gives no picture\n", argv[i]);
            continue;
        }
        const double parte = Parte_Diversa(nostra, loro);
        const bool uguale = parte <= SCARTO_IMMAGINE;
        ++(uguale ? uguali : diversi);
        if (!uguale)
            std::printf("different  %s: %.1f %% of the pixels\n", argv[i], parte * 100);
    }
    std::printf("%d files: %d the same, %d refused, %d different, %d without a model\n", argc - 1, uguali,
                rifiutati, diversi, senza_modello);
    return diversi > 0;
}
