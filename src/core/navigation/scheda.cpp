#include "core/navigation/scheda.h"

#include <QFileInfo>

#include "core/base/testo.h"
#include "core/catalogue_db/con_trappola.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<Foto_Scheda> Foto(const QString& nome, const Contesto_Scheda& contesto) {
    const QString voce = Trim(nome);
    if (voce.isEmpty())
        return std::nullopt;
    const QString percorso = contesto.File.Scompatta_File_Compattato(voce);
    if (!QFileInfo(percorso).isFile())
        return std::nullopt;
    const std::optional<QSizeF> immagine = contesto.Misura(percorso);
    if (!immagine)
        return std::nullopt;
    double larghezza = LARGHEZZA_FOTO_SCHEDA, altezza = ALTEZZA_FOTO_SCHEDA;
    Adatta_Immagine(immagine->width(), immagine->height(), larghezza, altezza, 1);
    return Foto_Scheda{percorso, QSizeF(larghezza, altezza)};
}

std::vector<Riga_Scheda> Righe(const Collection_scheda& voci, Fonte_File& file) {
    std::vector<Riga_Scheda> righe;
    for (const Class_scheda& voce : voci) {
        if (voce.Titolo.isEmpty() && voce.Descrizione.isEmpty())
            continue;
        righe.push_back(
            {voce.Titolo, voce.Descrizione,
             voce.Allegato.isEmpty() ? QString() : file.Scompatta_File_Compattato(voce.Allegato)});
    }
    return righe;
}

}  // namespace

double Rapporto_Immagine(const QString& file, double& larghezza, double& altezza,
                         const Misura_Immagine& misura) {
    if (const std::optional<QSizeF> immagine = misura(file))
        Adatta_Immagine(immagine->width(), immagine->height(), larghezza, altezza, 1);
    return larghezza > 0 ? altezza / larghezza : 0;
}

void Carica_Scheda_Prodotto(const Class_DBOper& db, const QString& key, const QString& lingua,
                            Collection_scheda& scheda) {
    while (scheda.Count() > 0)
        scheda.Remove(1);
    Con_Trappola(false, [&](bool&) {
        Recordset righe = db.Apri_Recordset(
            u"SELECT Titolo_%1,Descrizione_%1,Allegato_%1,Tipo_Allegato_%1 FROM Scheda_Prodotti "_s.arg(
                lingua) +
            u"WHERE Key_Prodotto = '"_s + key + u"' ORDER BY Ordine ;"_s);
        for (int posizione = 0; !righe.EOF_(); righe.MoveNext(), ++posizione) {
            Class_scheda& voce = scheda.Add(u"Key_"_s + QString::number(posizione));
            voce.Titolo = Trim(righe.Campo(0).Testo());
            voce.Descrizione = Trim(righe.Campo(1).Testo());
            voce.Allegato = Trim(righe.Campo(2).Testo());
            voce.Tipo_Allegato = Trim(righe.Campo(3).Testo());
        }
    });
}

Scheda_Prodotto Carica_Scheda(const Contesto_Scheda& contesto, const QString& key) {
    Scheda_Prodotto scheda;
    if (key.isEmpty())
        return scheda;
    const Class_DBOper& db = contesto.DB;
    const QString key_sql = Con_Apici_Raddoppiati(key);
    scheda.Label_Help_Albero = false;
    scheda.Link_Disegno = E_Prodotto(key);
    scheda.Nome = db.Restituisci_NomeProdotto_Tradotto(key_sql, contesto.Lingua);
    scheda.Codice = db.Restituisci_Matricola_Tradotta(key_sql, contesto.Lingua);
    scheda.Descrizione = db.Restituisci_Descrizione_Tradotta(key_sql, contesto.Lingua);
    const auto voci = contesto.Albero.Item(key).Collection_Scheda_Prodotto();
    Carica_Scheda_Prodotto(db, key_sql, contesto.Lingua, *voci);
    scheda.Righe = Righe(*voci, contesto.File);
    scheda.Foto_1 = Foto(db.Restituisci_NomeFoto_1_Prodotto(key_sql), contesto);
    scheda.Foto_2 = Foto(db.Restituisci_NomeFoto_2_Prodotto(key_sql), contesto);
    return scheda;
}
