#include "gui/parts_tables/immagini_risorsa.h"

namespace {

QString Nome_Doppio(const QString& nome) {
    const qsizetype punto = nome.lastIndexOf(u'.');
    return punto < 0 ? nome + QStringLiteral("@2x")
                     : nome.left(punto) + QStringLiteral("@2x") + nome.mid(punto);
}

}  // namespace

QPixmap Immagini_Risorsa::Immagine(const QString& nome, double densita) {
    if (nome.isEmpty())
        return {};
    const bool doppia = densita > 1.0;
    const QString chiave = doppia ? Nome_Doppio(nome) : nome;
    const auto trovata = immagini_.constFind(chiave);
    if (trovata != immagini_.constEnd())
        return *trovata;
    QPixmap immagine;
    immagine.loadFromData(leggi_(chiave));
    if (doppia && !immagine.isNull())
        immagine.setDevicePixelRatio(2.0);
    else if (doppia)
        immagine = Immagine(nome, 1.0);
    immagini_.insert(chiave, immagine);
    return immagine;
}
