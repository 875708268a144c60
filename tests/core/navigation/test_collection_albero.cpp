#include <gmock/gmock.h>

#include "core/navigation/collection_albero.h"
#include "support/catalogo_aperto.h"

namespace {

Class_Albero& Aggiungi(Collection_Albero& albero, const QString& key, const QString& padre) {
    Class_Albero& nodo = albero.Add(key);
    nodo.Key_Padre = padre;
    return nodo;
}

QStringList Chiavi(const Collection_Albero& albero) {
    QStringList chiavi;
    for (const Class_Albero& nodo : albero)
        chiavi.append(nodo.Key_Prodotto);
    return chiavi;
}

TEST(Collection_Albero, KeepsNodesInOrderByKeyAndPosition) {
    Collection_Albero albero;
    albero.Add(u"G_2"_qs);
    albero.Add(QString());
    auto nodo = std::make_shared<Class_Albero>();
    nodo->Key_Prodotto = u"P_1"_qs;
    EXPECT_EQ(&albero.Add_Nodo(u"P_1"_qs, nodo), nodo.get());

    EXPECT_EQ(albero.Count(), 3);
    EXPECT_EQ(albero.Item(1).Key_Prodotto, u"G_2");
    EXPECT_EQ(&albero.Item(u"P_1"_qs), nodo.get());
    EXPECT_TRUE(albero.Esiste(u"G_2"_qs));
    EXPECT_FALSE(albero.Esiste(u"g_2"_qs));
    EXPECT_THROW(albero.Add(u"G_2"_qs), Errore_Collezione);
    EXPECT_THROW(albero.Item(u"P_9"_qs), Errore_Collezione);
    EXPECT_THROW(albero.Remove(u"P_9"_qs), Errore_Collezione);

    albero.Remove(u"G_2"_qs);
    EXPECT_FALSE(albero.Esiste(u"G_2"_qs));
    EXPECT_EQ(&albero.Item(2), nodo.get());
}

TEST(Collection_Albero, SheetsAreMadeAtTheFirstReadAndKept) {
    Collection_Albero albero;
    Class_Albero& nodo = albero.Add(u"P_1"_qs);
    const auto scheda = nodo.Collection_Scheda_Prodotto();
    ASSERT_NE(scheda, nullptr);
    EXPECT_EQ(nodo.Collection_Scheda_Prodotto(), scheda);
    EXPECT_NE(albero.Scheda(), scheda);
    EXPECT_EQ(albero.Scheda(), albero.Scheda());

    const auto altra = std::make_shared<Collection_scheda>();
    nodo.Collection_Scheda_Prodotto(altra);
    EXPECT_EQ(nodo.Collection_Scheda_Prodotto(), altra);
}

TEST(Class_Albero, LayoutTablesIgnoreLowAndRefuseHighIndices) {
    Class_Albero nodo;
    for (const auto& [lingua, mercato] : {std::pair{0, 5}, {5, 0}, {-1, 11}, {11, 0}, {1, 1}, {10, 10}}) {
        EXPECT_NO_THROW(nodo.LayOut(lingua, mercato, u"a"_qs)) << lingua << ',' << mercato;
        EXPECT_NO_THROW(nodo.Numero_Pagina_Partenza(lingua, mercato, 3)) << lingua << ',' << mercato;
    }
    for (const auto& [lingua, mercato] : {std::pair{11, 1}, {1, 11}}) {
        EXPECT_THROW(nodo.LayOut(lingua, mercato, u"a"_qs), std::out_of_range) << lingua << ',' << mercato;
        EXPECT_THROW(nodo.Numero_Pagina_Partenza(lingua, mercato, 3), std::out_of_range);
    }
}

TEST(Collection_Albero, EnablementGoesUpToTheRoot) {
    struct Caso {
        const char* descrizione;
        QString radice, gruppo, prodotto;
        bool atteso;
    };
    const Caso casi[] = {
        {"all enabled", u"ABILITA"_qs, u"ABILITA"_qs, u"ABILITA"_qs, true},
        {"an unknown state is enabled at the root", u""_qs, u"ABILITA"_qs, u"ABILITA"_qs, true},
        {"and not elsewhere", u"ABILITA"_qs, u"ABILITA"_qs, u""_qs, false},
        {"nor on the way", u"ABILITA"_qs, u"altro"_qs, u"ABILITA"_qs, false},
        {"disabled root", u"DISABILITA"_qs, u"ABILITA"_qs, u"ABILITA"_qs, false},
        {"disabled group", u"ABILITA"_qs, u"DISABILITA"_qs, u"ABILITA"_qs, false},
        {"disabled product", u"ABILITA"_qs, u"ABILITA"_qs, u"DISABILITA"_qs, false},
    };
    for (const Caso& caso : casi) {
        Collection_Albero albero;
        Aggiungi(albero, u"R"_qs, u""_qs).Stato_Abilitazione = caso.radice;
        Aggiungi(albero, u"G_1"_qs, u"R"_qs).Stato_Abilitazione = caso.gruppo;
        Aggiungi(albero, u"P_1"_qs, u"G_1"_qs).Stato_Abilitazione = caso.prodotto;
        EXPECT_EQ(albero.Nodo_Abilitato_Sino_Radice(u"P_1"_qs), caso.atteso) << caso.descrizione;
        EXPECT_FALSE(albero.Nodo_Abilitato_Sino_Radice(u"P_2"_qs));
    }
}

TEST(Collection_Albero, VisibleUpToTheRoot) {
    Collection_Albero albero;
    Aggiungi(albero, u"G_1"_qs, u"R"_qs).Key_Mercato = u"/1/13/"_qs;
    Aggiungi(albero, u"P_1"_qs, u"G_1"_qs);
    Aggiungi(albero, u"P_2"_qs, u"G_1"_qs).Key_Mercato = u"/2/"_qs;
    Aggiungi(albero, u"P_3"_qs, u"G_9"_qs);
    Aggiungi(albero, u"P_4"_qs, u"R"_qs).Key_Mercato = u"/"_qs;
    struct Caso {
        QString key, mercato;
        bool visibile;
    };
    const Caso casi[] = {
        {u"R"_qs, u"3"_qs, true},    {u"G_1"_qs, u"1"_qs, true},  {u"P_1"_qs, u"13"_qs, true},
        {u"P_1"_qs, u"3"_qs, false}, {u"P_2"_qs, u"2"_qs, false}, {u"P_2"_qs, u"1"_qs, false},
        {u"P_3"_qs, u"1"_qs, false}, {u"P_4"_qs, u""_qs, false},  {u"P_9"_qs, u"1"_qs, false},
    };
    for (const Caso& caso : casi)
        EXPECT_EQ(Nodo_Visibile_Sino_Radice(caso.key, albero, caso.mercato), caso.visibile)
            << qPrintable(caso.key) << " in " << qPrintable(caso.mercato);
    EXPECT_TRUE(Nodo_Valido_Per_Mercato(u"P_2"_qs, albero, u"2"_qs));
    EXPECT_THROW(Nodo_Valido_Per_Mercato(u"P_9"_qs, albero, u"2"_qs), Errore_Collezione);
}

TEST(Collection_Albero, ParentsInACircleNeverReachTheRoot) {
    Collection_Albero albero;
    Aggiungi(albero, u"G_1"_qs, u"G_2"_qs).Stato_Abilitazione = u"ABILITA"_qs;
    Aggiungi(albero, u"G_2"_qs, u"G_1"_qs).Stato_Abilitazione = u"ABILITA"_qs;
    EXPECT_FALSE(albero.Nodo_Abilitato_Sino_Radice(u"G_1"_qs));
    EXPECT_FALSE(Nodo_Visibile_Sino_Radice(u"G_1"_qs, albero, u"1"_qs));
}

/// A catalogue whose tree is these rows: key, parent, order, depth, caption in language 1 and 2, market,
/// group.
Catalogo_Di_Prova Con_Albero(const std::vector<std::vector<Valore_Prova>>& righe) {
    Catalogo_Di_Prova catalogo;
    catalogo.Tabella(
        u"Albero_Web"_qs,
        {u"Key_Prodotto"_qs, u"Key_Padre"_qs, u"Ordine"_qs, u"Profondita_Nodo"_qs, u"Testo_Visualizzato_1"_qs,
         u"Testo_Visualizzato_2"_qs, u"Key_Mercato"_qs, u"Key_Gruppo"_qs, u"Percorso"_qs},
        righe);
    return catalogo;
}
constexpr std::nullopt_t NULLO = std::nullopt;

TEST(Carica_Struttura_Albero_Web, ReadsAllRowsInOrderInOneLanguage) {
    const Catalogo_Aperto prova(Con_Albero({{"P_1", "G_1", "2", "2", "uno", "one", NULLO, NULLO, "Root/Uno"},
                                            {"P_2", "G_1", "1", "2", "due", "two", " /1/2/ ", " /A/ ", NULLO},
                                            {"R", NULLO, NULLO, "0", "Radice", "Root", NULLO, NULLO, NULLO},
                                            {NULLO, "R", "1", "1", "x", "x", NULLO, NULLO, NULLO},
                                            {"G_1", "R", "70000", "1", NULLO, "Group", "", "", "Root"}}));
    Collection_Albero albero;
    albero.Add(u"P_1"_qs);
    Carica_Struttura_Albero_Web(prova.DB, u"1"_qs, albero);

    EXPECT_EQ(prova.DB.SQL(), u"SELECT * FROM Albero_Web ORDER BY Profondita_nodo ASC,Ordine ASC ;");
    EXPECT_EQ(Chiavi(albero), QStringList({u"R"_qs, u"G_1"_qs, u"P_2"_qs, u"P_1"_qs}));
    const Class_Albero& radice = albero.Item(u"R"_qs);
    EXPECT_EQ(radice.Key_Padre, QString());
    EXPECT_EQ(radice.Ordine, 0);
    EXPECT_EQ(radice.Key_Mercato, QString());
    EXPECT_EQ(albero.Item(u"G_1"_qs).Testo_Visualizzato_, Valore()) << "a missing caption stays NULL";
    EXPECT_EQ(albero.Item(u"G_1"_qs).Ordine, 32767);
    const Class_Albero& due = albero.Item(u"P_2"_qs);
    EXPECT_EQ(due.Testo_Visualizzato_.Testo(), u"due");
    EXPECT_EQ(due.Key_Padre, u"G_1");
    EXPECT_EQ(due.Profondita_Nodo, 2);
    EXPECT_EQ(due.Key_Mercato, u"/1/2/");
    EXPECT_EQ(due.Key_Gruppo, u"/A/");
    EXPECT_EQ(albero.Item(u"P_1"_qs).Percorso, u"Root/Uno");

    Carica_Struttura_Albero_Web(prova.DB, u"02"_qs, albero);
    EXPECT_EQ(albero.Item(u"P_2"_qs).Testo_Visualizzato_.Testo(), u"two");
    EXPECT_EQ(albero.Count(), 4);
}

TEST(Carica_Struttura_Albero_Web, AnEmptyTableGivesAnEmptyModel) {
    const Catalogo_Aperto prova(Con_Albero({}));
    Collection_Albero albero;
    albero.Add(u"P_1"_qs);
    Carica_Struttura_Albero_Web(prova.DB, u"12"_qs, albero);
    EXPECT_EQ(albero.Count(), 0);
}

TEST(Carica_Struttura_Albero_Web, FailsOnAMissingLanguageTableOrATwofoldKey) {
    Collection_Albero albero;
    const Catalogo_Aperto doppia(Con_Albero(
        {{"P_1", "R", "1", "1", "a", "a", "", "", ""}, {"P_1", "R", "2", "1", "b", "b", "", "", ""}}));
    EXPECT_THROW(Carica_Struttura_Albero_Web(doppia.DB, u"1"_qs, albero), Errore_Collezione);
    EXPECT_THROW(Carica_Struttura_Albero_Web(doppia.DB, u"12"_qs, albero), Errore_DB);
    const Catalogo_Aperto senza(Catalogo_Di_Prova().Rimuovi_Tabella(u"Albero_Web"_qs));
    EXPECT_THROW(Carica_Struttura_Albero_Web(senza.DB, u"1"_qs, albero), Errore_DB);
}

}  // namespace
