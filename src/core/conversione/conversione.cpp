#include "core/conversione/conversione.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "core/catalogue_db/engine/database.h"

namespace {

/// Files of one engine.
struct Formato {
    QByteArray Inizio;  ///< the first bytes of each
    /// Puts a database of ours in the file's place. Fails with `Errore_DB`, and then the file is as it was.
    /// None for the files that are ours.
    void (*Converti)(const QString& percorso);
};

const Formato* Formato_Di(QByteArrayView inizio) {
    // Another engine's files are read as soon as they have a line here.
    static const Formato formati[] = {{INIZIO_DATABASE, nullptr}};
    const auto* formato =
        std::ranges::find_if(formati, [&](const Formato& uno) { return inizio.startsWith(uno.Inizio); });
    return formato == std::end(formati) ? nullptr : formato;
}

}  // namespace

bool E_Un_Database(QByteArrayView inizio) {
    return Formato_Di(inizio) != nullptr;
}

void Converti_Database(const QString& percorso) {
    QFile file(percorso);
    if (!QFileInfo(percorso).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const Formato* formato = Formato_Di(file.read(BYTE_INIZIO));
    file.close();
    if (!formato)
        throw Errore_DB(QStringLiteral("The file isn't a catalogue database."));
    if (formato->Converti)
        formato->Converti(percorso);
}
