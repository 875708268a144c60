#include "core/parts_tables/clic_griglia.h"

#include <QFileInfo>

#include "core/base/testo.h"

namespace {

using Genere = Azione_Cella::Genere;

Genere Genere_Tag(const QString& tag) {
    const QString genere = Campo_Tag(tag, 1);
    for (const auto& [testo, trovato] :
         {std::pair(u"Image", Genere::Image), std::pair(u"Document", Genere::Document),
          std::pair(u"Add_Componente", Genere::Add_Componente), std::pair(u"Elimina", Genere::Elimina),
          std::pair(u"Qta", Genere::Qta), std::pair(u"Note", Genere::Note)})
        if (genere == QStringView(testo))
            return trovato;
    return Genere::Nessuna;
}

void Apri_Documento(const QString& voce, const Contesto_Griglia& contesto) {
    if (const QString percorso = contesto.File.Scompatta_File_Compattato(voce); !percorso.isEmpty())
        contesto.Sistema_.Apri_Con_Predefinito(percorso);
}

void Mostra_Immagine(const QString& voce, const Contesto_Griglia& contesto,
                     const Esecutore_Cella& esecutore) {
    const QString percorso = contesto.File.Scompatta_File_Compattato(voce);
    if (QFileInfo(percorso).isFile())
        esecutore.Mostra_Immagine(percorso);
}

void Esegui(const Azione_Cella& azione, const Contesto_Griglia& contesto, const Esecutore_Cella& esecutore) {
    const auto fai = [&](const Esecutore_Cella::Lavoro& lavoro) {
        if (lavoro)
            lavoro(azione);
    };
    switch (azione.Tipo) {
        case Genere::Nessuna:
            return;
        case Genere::Image:
            return Mostra_Immagine(azione.Voce, contesto, esecutore);
        case Genere::Document:
            return Apri_Documento(azione.Voce, contesto);
        case Genere::Evidenzia:
            return fai(esecutore.Evidenzia);
        case Genere::Add_Componente:
            return fai(esecutore.Aggiungi);
        case Genere::Elimina:
            return fai(esecutore.Elimina);
        case Genere::Qta:
        case Genere::Note:
            return fai(esecutore.Modifica);
    }
}

}  // namespace

QString Campo_Tag(const QString& tag, int n) {
    const QString campo = Estrai_Token(tag, n, u"|");
    return campo == FINE_TOKEN ? QString() : campo;
}

Azione_Cella Leggi_Tag(const Tag_Griglia& tag, int riga, int colonna) {
    const QString& testo = tag.At(riga, colonna);
    Azione_Cella azione;
    azione.Tipo = Genere_Tag(testo);
    azione.Riga = riga;
    azione.Colonna = colonna;
    if (azione.Tipo == Genere::Image || azione.Tipo == Genere::Document) {
        azione.Voce = Campo_Tag(testo, 2);
    } else if (azione.Tipo != Genere::Nessuna) {
        azione.Codice = Campo_Tag(testo, 2);
        azione.Prodotto = Campo_Tag(testo, 3);
        azione.Riferimento = Campo_Tag(testo, 4);
    }
    return azione;
}

Azione_Cella Cerca_Azione(const Tag_Griglia& tag, int riga, Genere genere) {
    for (int c = 0; c < tag.Colonne(riga); ++c)
        if (Azione_Cella azione = Leggi_Tag(tag, riga, c); azione.Tipo == genere)
            return azione;
    return {};
}

Azione_Cella Clic_Griglia(const Tag_Griglia& tag, int riga, int colonna) {
    if (riga <= 0 || colonna <= 0 || !tag.Contiene(riga, colonna))
        return {};
    if (!tag.At(riga, colonna).isEmpty())
        return Leggi_Tag(tag, riga, colonna);
    Azione_Cella azione = Cerca_Azione(tag, riga, Genere::Add_Componente);
    if (azione.Tipo != Genere::Nessuna)
        azione.Tipo = Genere::Evidenzia;
    return azione;
}

void Esegui_Azione(const Azione_Cella& azione, const Contesto_Griglia& contesto,
                   const Esecutore_Cella& esecutore) {
    try {
        Esegui(azione, contesto, esecutore);
    } catch (const std::exception&) {
        // The trap of the click handlers: nobody is told.
    }
}

Puntatore Puntatore_Tag(const QString& tag) {
    const Genere genere = Genere_Tag(tag);
    if (genere == Genere::Qta || genere == Genere::Note)
        return Puntatore::Testo;
    return Campo_Tag(tag, 1).isEmpty() ? Puntatore::Freccia : Puntatore::Mano;
}

Puntatore Puntatore_Griglia(const Griglia& griglia, const Tag_Griglia& tag, int riga, int colonna) {
    if (riga >= griglia.Rows())
        return Puntatore::Nessuno;
    return riga >= 1 && colonna >= 1 && tag.Contiene(riga, colonna) ? Puntatore_Tag(tag.At(riga, colonna))
                                                                    : Puntatore::Freccia;
}
