// compare_svgs FILE...: draws each file as the canvas does and as rsvg-convert does at the same size, and
// counts those that come out the same within anti-aliasing, those that are refused, and those that differ. A
// line for each file that isn't the same. Exit code 1 if any differs.

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "canvas/disegnatore.h"
#include "canvas/documento_tavola.h"
#include "canvas/superficie.h"

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

QImage Disegna(const std::shared_ptr<const Documento_Tavola>& documento) {
    const QSizeF pagina = documento->Pagina();
    const double scala = 256 / std::max(pagina.width(), pagina.height());
    QImage immagine((pagina * scala).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    immagine.fill(Qt::transparent);
    const Superficie_In_Memoria superficie(Superficie_In_Memoria::Formato::COLORI, immagine.bits(),
                                           immagine.width(), immagine.height(), immagine.bytesPerLine());
    Disegnatore(documento->Testo(), pagina).Disegna(superficie.Contesto(), {}, scala);
    return immagine;
}

enum Esito { UGUALE, RIFIUTATO, DIVERSO, SENZA_MODELLO };

/// Compares one file; `perche` says more.
Esito Confronta(const QString& percorso, const QString& modello, QString& perche) {
    const auto documento = Documento_Tavola::Da_File(percorso, &perche);
    if (!documento || !Disegnatore(documento->Testo(), documento->Pagina()).Valido())
        return RIFIUTATO;
    const QImage nostra = Disegna(documento);
    QFile::remove(modello);
    QProcess::execute("rsvg-convert", {"-w", QString::number(nostra.width()), "-h",
                                       QString::number(nostra.height()), "-o", modello, percorso});
    const QImage loro = QImage(modello).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (loro.isNull())
        return SENZA_MODELLO;
    const double parte = Parte_Diversa(nostra, loro);
    perche = QStringLiteral("%1 % of the pixels").arg(parte * 100, 0, 'f', 1);
    return parte <= SCARTO_IMMAGINE ? UGUALE : DIVERSO;
}

}  // namespace

int main(int argc, char** argv) {
    const QTemporaryDir cartella;
    const char* const nomi[] = {"the same", "refused", "different", "without a model"};
    int conto[4] = {};
    for (int i = 1; i < argc; ++i) {
        QString perche;
        const Esito esito =
            Confronta(QString::fromLocal8Bit(argv[i]), cartella.filePath("reference.png"), perche);
        ++conto[esito];
        if (esito != UGUALE)
            std::printf("%-15s %s: %s\n", nomi[esito], argv[i], qPrintable(perche));
    }
    std::printf("%d files:", argc - 1);
    for (int i = 0; i < 4; ++i)
        std::printf(" %d %s%s", conto[i], nomi[i], i < 3 ? "," : "\n");
    return conto[DIVERSO] > 0;
}
