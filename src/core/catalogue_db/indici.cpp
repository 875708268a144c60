#include "core/catalogue_db/indici.h"

namespace {

/// A column by which rows of a catalogue are looked up.
struct Indice_Catalogo {
    QString Tabella;
    QString Colonna;
};

bool Da_Fare(const Database& database, const Indice_Catalogo& indice) {
    const QString tabella = indice.Tabella;
    Recordset colonna = database.Apri_Recordset(
        QStringLiteral("SELECT 1 FROM pragma_table_info('%1') WHERE name = '%2' COLLATE NOCASE")
            .arg(tabella, indice.Colonna));
    if (colonna.EOF_())
        return false;
    // An index of whatever name that begins with the column serves as well; a partial one doesn't.
    Recordset gia_fatto = database.Apri_Recordset(
        QStringLiteral("SELECT 1 FROM pragma_index_list('%1') AS l, pragma_index_info(l.name) AS i "
                       "WHERE i.seqno = 0 AND l.partial = 0 AND i.name = '%2' COLLATE NOCASE")
            .arg(tabella, indice.Colonna));
    return gia_fatto.EOF_();
}

const std::vector<Indice_Catalogo>& Indici_Catalogo() {
    static const std::vector<Indice_Catalogo> indici{
        {QStringLiteral("Albero"), QStringLiteral("Key_Prodotto")},
        {QStringLiteral("Albero_Web"), QStringLiteral("Key_Prodotto")},
        {QStringLiteral("Componenti_Mappe"), QStringLiteral("Key_Associazione")},
        // Many rows share an association and few a hotspot; of two indexes the later one is taken.
        {QStringLiteral("Componenti_Mappe"), QStringLiteral("Key_Riferimento")},
        {QStringLiteral("Componenti_Web"), QStringLiteral("Key_Prodotto")},
        {QStringLiteral("Componenti_Web"), QStringLiteral("Codice_Componente")},
        {QStringLiteral("Matricola_Nodo"), QStringLiteral("Key_Prodotto")},
        {QStringLiteral("Prodotti"), QStringLiteral("Key_Prodotto")},
        {QStringLiteral("Prodotti"), QStringLiteral("Key_Associazione")},
        {QStringLiteral("Scheda_Prodotti"), QStringLiteral("Key_Prodotto")},
        {QStringLiteral("Traduzioni_Albero"), QStringLiteral("Descrizione_Nodo")},
        {QStringLiteral("Traduzioni_Albero"), QStringLiteral("Key_Testo_Visualizzato")},
        {QStringLiteral("Traduzioni_Componenti_Mappe"), QStringLiteral("Key")},
        {QStringLiteral("Traduzioni_Prodotti"), QStringLiteral("Key_Prodotto")},
        // By the control's name and not by the window's: the coded texts of one "window" keep their order.
        {QStringLiteral("Traduzioni_Viewer_System"), QStringLiteral("Name_Object")},
    };
    return indici;
}

}  // namespace

void Crea_Indici(const Database& database) {
    for (const Indice_Catalogo& indice : Indici_Catalogo()) {
        try {
            if (Da_Fare(database, indice))
                database.Esegui(QStringLiteral("CREATE INDEX [IX_%1_%2] ON [%1] ([%2])")
                                    .arg(indice.Tabella, indice.Colonna));
        } catch (const Errore_DB&) {
            // only speed
        }
    }
}
