#include "core/catalogue_db/schema.h"

#include <QSet>

namespace {

// "!" in front of a table or column: the viewer does without it. "#" at the end of a name stands for the
// languages 1 to 11; names joined by "&" repeat together, language by language.
constexpr const char* TABELLE[] = {
    "SYSTEM: KEY VALORE",
    "Lingue: ID Chiave Descrizione_Lingua Descrizione_Mercato Immagine Attiva_Lingua Attiva_Mercato",
    "Albero: Key_Prodotto !Key_Padre Descrizione_Nodo !Percorso_Nodo !Profondita_Nodo !Ordine "
    "!Tipo_Prodotto !Flag_1 !Flag_2 !Flag_3 !Flag_4 !Flag_5",
    "Albero_Web: Key_Prodotto Key_Padre Ordine Profondita_Nodo Percorso !Nome_Link "
    "Testo_Visualizzato_# Key_Mercato Key_Gruppo !Tipo_Prodotto !Flag_2 !Flag_3",
    "!Traduzioni_Albero: Descrizione_Nodo Key_Testo_Visualizzato Traduzione_#",
    "Prodotti: Key_Prodotto Key_Associazione Codice !Revisione Matricola Foto_1_Prodotto "
    "Foto_2_Prodotto Note Descrizione_Testuale Mappa_Associata !Flag_1 Flag_2 !Flag_3 !Flag_4 !Flag_5 "
    "!Flag_6 !Flag_7 !Flag_8 !Flag_9 !Flag_10",
    "!Traduzioni_Prodotti: Key_Prodotto Traduzione_Matricola_# Traduzione_Descrizione_# "
    "Traduzione_Nota_#",
    "!Scheda_Prodotti: Key_Prodotto Key_Testo Ordine Titolo_#&Descrizione_#&Allegato_#&Tipo_Allegato_#",
    "!Matricola_Nodo: Key_Prodotto Matricola Min_Matricola Max_Matricola !Min_Matricola_n "
    "!Max_Matricola_n",
    "Componenti:",
    "Componenti_Web: Ordine Key_Prodotto Key_Riferimento Key_HotSpot Codice_Componente "
    "Tipo_Associazione Quantita_min Key_Nota_1 Key_Nota_2 Key_Nota_3 Key_Mercato Key_Gruppo",
    "!Componenti_Mappe: Ordine Key_Associazione Codice_Mappa Key_Riferimento Key_HotSpot "
    "Key_Componente_Mappa Key_Componente_Distinta_#&Quantita_#",
    "!Traduzioni_Componenti_Mappe: Key Traduzione_Nota_#",
    "!Prodotti_Componenti: Key_Prodotto Codice_Prodotto Codice_Componente Key_Riferimento Key_Hotspot",
    "Struttura_Componenti: Nome_Colonna_Tabella Titolo_Colonna Traduzione_# Visualizzato Ordine "
    "Indice_Primario Key_Lingua Key_Mercato Key_Gruppo Tipo_Colonna Size",
    "!Anagrafico: Identificativo Societa Nome Cognome Indirizzo CAP Citta Provincia Nazione Telefono "
    "Fax Email Web PIVA Codice_Cliente Login Password Utente_Tipo Key_Gruppo Key_Sconto Extra11",
    "!Gruppi_Utenti: Key_Gruppo Ordine Key_Sconto ID_Lingue ID_Mercati",
    "!Sconti: Key_Sconto Ordine Tipo_Sconto Sconto_Generale Sconto_Qta Sconto_Totale",
    "!Print_Extension_Associate: Key_Prodotto ID_Lingua ID_Mercato LayOut_Associati Start_Num_Pagina",
    "Traduzioni_Viewer_System: Form Name_Object Index Tipo !Nome_Link Traduzione_# "
    "Traduzione_Tooltiptext_#",
};

void Aggiungi_Colonne(const QString& parola, std::vector<Colonna_Nota>& colonne) {
    const bool superflua = parola.startsWith(u'!');
    const QString modello = superflua ? parola.mid(1) : parola;
    if (!modello.contains(u'#')) {
        colonne.push_back({modello, !superflua, 0});
        return;
    }
    for (int lingua = 1; lingua <= ULTIMA_LINGUA; ++lingua)
        for (QString nome : modello.split(u'&'))
            colonne.push_back({nome.replace(u'#', QString::number(lingua)), !superflua, lingua});
}

std::vector<Tabella_Nota> Crea_Tabelle() {
    std::vector<Tabella_Nota> tabelle;
    for (const char* testo : TABELLE) {
        const QString riga = QString::fromLatin1(testo);
        const qsizetype due_punti = riga.indexOf(u':');
        Tabella_Nota tabella;
        tabella.Necessaria = !riga.startsWith(u'!');
        tabella.Nome = riga.left(due_punti).mid(tabella.Necessaria ? 0 : 1);
        for (const QString& parola : riga.mid(due_punti + 1).split(u' ', Qt::SkipEmptyParts))
            Aggiungi_Colonne(parola, tabella.Colonne);
        tabelle.push_back(std::move(tabella));
    }
    return tabelle;
}

QString Tipo_Noto(const QString& tabella, const QString& colonna) {
    static const QSet<QString> interi = {QStringLiteral("ordine"), QStringLiteral("profondita_nodo"),
                                         QStringLiteral("tipo_associazione"),
                                         QStringLiteral("start_num_pagina")};
    const QString nome = colonna.toLower();
    if (interi.contains(nome) || (nome == u"id" && tabella.compare(u"Lingue", Qt::CaseInsensitive) == 0))
        return QStringLiteral("INTEGER");
    if (nome == u"min_matricola_n" || nome == u"max_matricola_n")
        return QStringLiteral("REAL");
    return QStringLiteral("TEXT");
}

}  // namespace

const std::vector<Tabella_Nota>& Tabelle_Note() {
    static const std::vector<Tabella_Nota> tabelle = Crea_Tabelle();
    return tabelle;
}

QStringList Colonne_Note(const QString& tabella) {
    QStringList nomi;
    for (const Tabella_Nota& nota : Tabelle_Note())
        if (nota.Nome.compare(tabella, Qt::CaseInsensitive) == 0)
            for (const Colonna_Nota& colonna : nota.Colonne)
                nomi += colonna.Nome;
    return nomi;
}

Definizione_Colonna Definizione_Nota(const QString& tabella, const QString& colonna) {
    const QString tipo = Tipo_Noto(tabella, colonna);
    return {colonna, tipo, Confronto_Del_Tipo(tipo)};
}

QString Confronto_Del_Tipo(const QString& tipo) {
    // The same letters as the engine looks at when it decides a column's affinity.
    const QString maiuscolo = tipo.toUpper();
    const bool testo =
        !maiuscolo.contains(u"INT") &&
        (maiuscolo.contains(u"CHAR") || maiuscolo.contains(u"CLOB") || maiuscolo.contains(u"TEXT"));
    return testo ? QStringLiteral("NOCASE") : QStringLiteral("BINARY");
}
