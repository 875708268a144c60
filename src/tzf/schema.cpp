#include "tzf/schema.h"

#include <QHash>
#include <QSet>

namespace {

// "!" in front of a table or column: the viewer does without it. "#" at the end of a name stands for the
// languages 1 to 11; names joined by "&" repeat together, language by language.
constexpr const char* TABLES[] = {
    "SYSTEM: KEY VALORE",
    "Lingue: ID Chiave Descrizione_Lingua Descrizione_Mercato Immagine Attiva_Lingua Attiva_Mercato",
    "Albero: Key_Prodotto !Key_Padre Descrizione_Nodo !Percorso_Nodo !Profondita_Nodo !Ordine !Tipo_Prodotto "
    "!Flag_1 "
    "!Flag_2 !Flag_3 !Flag_4 !Flag_5",
    "Albero_Web: Key_Prodotto Key_Padre Ordine Profondita_Nodo Percorso !Nome_Link Testo_Visualizzato_# "
    "Key_Mercato "
    "Key_Gruppo !Tipo_Prodotto !Flag_2 !Flag_3",
    "!Traduzioni_Albero: Descrizione_Nodo Key_Testo_Visualizzato Traduzione_#",
    "Prodotti: Key_Prodotto Key_Associazione Codice !Revisione Matricola Foto_1_Prodotto Foto_2_Prodotto "
    "Note "
    "Descrizione_Testuale Mappa_Associata !Flag_1 Flag_2 !Flag_3 !Flag_4 !Flag_5 !Flag_6 !Flag_7 !Flag_8 "
    "!Flag_9 "
    "!Flag_10",
    "!Traduzioni_Prodotti: Key_Prodotto Traduzione_Matricola_# Traduzione_Descrizione_# Traduzione_Nota_#",
    "!Scheda_Prodotti: Key_Prodotto Key_Testo Ordine Titolo_#&Descrizione_#&Allegato_#&Tipo_Allegato_#",
    "!Matricola_Nodo: Key_Prodotto Matricola Min_Matricola Max_Matricola !Min_Matricola_n !Max_Matricola_n",
    "Componenti:",
    "Componenti_Web: Ordine Key_Prodotto Key_Riferimento Key_HotSpot Codice_Componente Tipo_Associazione "
    "Quantita_min Key_Nota_1 Key_Nota_2 Key_Nota_3 Key_Mercato Key_Gruppo",
    "!Componenti_Mappe: Ordine Key_Associazione Codice_Mappa Key_Riferimento Key_HotSpot "
    "Key_Componente_Mappa "
    "Key_Componente_Distinta_#&Quantita_#",
    "!Traduzioni_Componenti_Mappe: Key Traduzione_Nota_#",
    "!Prodotti_Componenti: Key_Prodotto Codice_Prodotto Codice_Componente Key_Riferimento Key_Hotspot",
    "Struttura_Componenti: Nome_Colonna_Tabella Titolo_Colonna Traduzione_# Visualizzato Ordine "
    "Indice_Primario "
    "Key_Lingua Key_Mercato Key_Gruppo Tipo_Colonna Size",
    "!Anagrafico: Identificativo Societa Nome Cognome Indirizzo CAP Citta Provincia Nazione Telefono Fax "
    "Email Web "
    "PIVA Codice_Cliente Login Password Utente_Tipo Key_Gruppo Key_Sconto Extra11",
    "!Gruppi_Utenti: Key_Gruppo Ordine Key_Sconto ID_Lingue ID_Mercati",
    "!Sconti: Key_Sconto Ordine Tipo_Sconto Sconto_Generale Sconto_Qta Sconto_Totale",
    "!Print_Extension_Associate: Key_Prodotto ID_Lingua ID_Mercato LayOut_Associati Start_Num_Pagina",
    "Traduzioni_Viewer_System: Form Name_Object Index Tipo !Nome_Link Traduzione_# Traduzione_Tooltiptext_#",
};

void addColumns(const QString& word, std::vector<KnownColumn>& columns) {
    const bool optional = word.startsWith(u'!');
    const QString pattern = optional ? word.mid(1) : word;
    if (!pattern.contains(u'#')) {
        columns.push_back({pattern, !optional, 0});
        return;
    }
    for (int language = 1; language <= HIGHEST_LANGUAGE; ++language) {
        for (QString name : pattern.split(u'&'))
            columns.push_back({name.replace(u'#', QString::number(language)), !optional, language});
    }
}

std::vector<KnownTable> makeTables() {
    std::vector<KnownTable> tables;
    for (const char* text : TABLES) {
        const QString line = QString::fromLatin1(text);
        const qsizetype colon = line.indexOf(u':');
        KnownTable table;
        table.needed = !line.startsWith(u'!');
        table.name = line.left(colon).mid(table.needed ? 0 : 1);
        for (const QString& word : line.mid(colon + 1).split(u' ', Qt::SkipEmptyParts))
            addColumns(word, table.columns);
        tables.push_back(std::move(table));
    }
    return tables;
}

}  // namespace

const std::vector<KnownTable>& knownTables() {
    static const std::vector<KnownTable> tables = makeTables();
    return tables;
}

const KnownTable* knownTable(const QString& name) {
    for (const KnownTable& table : knownTables())
        if (table.name.compare(name, Qt::CaseInsensitive) == 0)
            return &table;
    return nullptr;
}

QStringList columnsOf(const QString& table) {
    QStringList names;
    if (const KnownTable* known = knownTable(table))
        for (const KnownColumn& column : known->columns)
            names << column.name;
    return names;
}

QString builtInType(const QString& table, const QString& column) {
    static const QSet<QString> integers = {QStringLiteral("ordine"), QStringLiteral("profondita_nodo"),
                                           QStringLiteral("tipo_associazione"),
                                           QStringLiteral("start_num_pagina")};
    const QString name = column.toLower();
    if (integers.contains(name) || (name == u"id" && table.compare(u"Lingue", Qt::CaseInsensitive) == 0))
        return QStringLiteral("INTEGER");
    if (name == u"min_matricola_n" || name == u"max_matricola_n")
        return QStringLiteral("REAL");
    return QStringLiteral("TEXT");
}

QString builtInCollation(const QString& type) {
    // The same letters as the engine looks at when it decides a column's affinity.
    const QString upper = type.toUpper();
    const bool text = !upper.contains(u"INT") &&
                      (upper.contains(u"CHAR") || upper.contains(u"CLOB") || upper.contains(u"TEXT"));
    return text ? QStringLiteral("NOCASE") : QStringLiteral("BINARY");
}
