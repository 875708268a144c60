#include "core/parts_tables/allegati_griglia.h"

#include <QFileInfo>

QString Percorso_Immagine_Cella(const QString& voce, Fonte_File& file) {
    const QString percorso = file.Scompatta_File_Compattato(voce);
    return QFileInfo(percorso).isFile() ? percorso : QString();
}

void Apri_Documento_Cella(const QString& voce, Fonte_File& file, Sistema& sistema) {
    if (const QString percorso = file.Scompatta_File_Compattato(voce); !percorso.isEmpty())
        sistema.Apri_Con_Predefinito(percorso);
}
