#include "gui/parts_tables/immagini_risorsa.h"

#include <QTemporaryDir>

#include "core/base/testo.h"
#include "core/package/unpacking.h"

namespace {

QString Nome_Doppio(const QString& nome) {
    const qsizetype punto = nome.lastIndexOf(u'.');
    return punto < 0 ? nome + QStringLiteral("@2x")
                     : nome.left(punto) + QStringLiteral("@2x") + nome.mid(punto);
}

}  // namespace

QPixmap Immagini_Risorsa::Carica(const QString& nome) const {
    // A folder of its own, gone with this call: nothing of the pictures stays on the disk.
    const QTemporaryDir cartella;
    if (!cartella.isValid())
        return {};
    Estrattore estrattore(sistema_);
    return QPixmap(estrattore.Estrai_Da_Pacchetto({pacchetto_, nome}, Cartella_Con_Barra(cartella.path())));
}

QPixmap Immagini_Risorsa::Immagine(const QString& nome, double densita) {
    if (nome.isEmpty())
        return {};
    const bool doppia = densita > 1.0;
    const QString chiave = doppia ? Nome_Doppio(nome) : nome;
    const auto trovata = immagini_.constFind(chiave);
    if (trovata != immagini_.constEnd())
        return *trovata;
    QPixmap immagine = Carica(chiave);
    if (doppia && !immagine.isNull())
        immagine.setDevicePixelRatio(2.0);
    else if (doppia)
        immagine = Immagine(nome, 1.0);
    immagini_.insert(chiave, immagine);
    return immagine;
}
