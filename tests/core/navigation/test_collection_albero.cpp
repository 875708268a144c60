#include <gmock/gmock.h>

#include "../base/righe.h"
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

TEST(Class_Albero, LayoutTablesIgnoreLowAndRefuseHighIndices) {
    Class_Albero nodo;
    for (const auto& [lingua, mercato] : {std::pair{0, 5}, {5, 0}, {-1, 11}, {10, 10}})
        EXPECT_NO_THROW(nodo.LayOut(lingua, mercato, "a")) << lingua << ',' << mercato;
    for (const auto& [lingua, mercato] : {std::pair{11, 1}, {1, 11}}) {
        EXPECT_THROW(nodo.LayOut(lingua, mercato, "a"), std::out_of_range) << lingua << ',' << mercato;
        EXPECT_THROW(nodo.Numero_Pagina_Partenza(lingua, mercato, 3), std::out_of_range);
    }
}

TEST(Collection_Albero, EnablementGoesUpToTheRoot) {
    // The states of root, group and product. An unknown one is enabled at the root only.
    for (const QStringList& caso :
         Righe("ABILITA=ABILITA=ABILITA=1|=ABILITA=ABILITA=1|ABILITA=ABILITA==0|ABILITA=altro=ABILITA=0|"
               "DISABILITA=ABILITA=ABILITA=0")) {
        Collection_Albero albero;
        Aggiungi(albero, "R", "").Stato_Abilitazione = caso[0];
        Aggiungi(albero, "G_1", "R").Stato_Abilitazione = caso[1];
        Aggiungi(albero, "P_1", "G_1").Stato_Abilitazione = caso[2];
        EXPECT_EQ(albero.Nodo_Abilitato_Sino_Radice("P_1"), caso[3] == "1") << qPrintable(caso.join('='));
    }
}

TEST(Collection_Albero, VisibleUpToTheRoot) {
    Collection_Albero albero;
    Aggiungi(albero, "G_1", "R").Key_Mercato = "/1/13/";
    Aggiungi(albero, "P_1", "G_1");
    Aggiungi(albero, "P_2", "G_1").Key_Mercato = "/2/";
    Aggiungi(albero, "P_3", "G_9");
    Aggiungi(albero, "P_4", "R").Key_Mercato = "/";
    for (const QStringList& caso :
         Righe("R=3=1|G_1=1=1|P_1=13=1|P_1=3=0|P_2=2=0|P_2=1=0|P_3=1=0|P_4==0|P_9=1=0"))
        EXPECT_EQ(Nodo_Visibile_Sino_Radice(caso[0], albero, caso[1]), caso[2] == "1")
            << qPrintable(caso.join('='));
    EXPECT_TRUE(Nodo_Valido_Per_Mercato("P_2", albero, "2"));
    EXPECT_THROW(Nodo_Valido_Per_Mercato("P_9", albero, "2"), Errore_Collezione);
}

TEST(Collection_Albero, ParentsInACircleNeverReachTheRoot) {
    Collection_Albero albero;
    Aggiungi(albero, "G_1", "G_2").Stato_Abilitazione = "ABILITA";
    Aggiungi(albero, "G_2", "G_1").Stato_Abilitazione = "ABILITA";
    EXPECT_FALSE(albero.Nodo_Abilitato_Sino_Radice("G_1"));
    EXPECT_FALSE(Nodo_Visibile_Sino_Radice("G_1", albero, "1"));
}

/// A catalogue whose tree is these rows: key, parent, order, depth, caption in language 1 and 2, market,
/// group.
Catalogo_Di_Prova Con_Albero(const std::vector<std::vector<Valore_Prova>>& righe) {
    return Catalogo_Di_Prova().Tabella(
        "Albero_Web",
        {"Key_Prodotto", "Key_Padre", "Ordine", "Profondita_Nodo", "Testo_Visualizzato_1",
         "Testo_Visualizzato_2", "Key_Mercato", "Key_Gruppo", "Percorso"},
        righe);
}
constexpr std::nullopt_t NULLO = std::nullopt;

TEST(Carica_Struttura_Albero_Web, ReadsAllRowsInOrderInOneLanguage) {
    const Catalogo_Aperto prova(Con_Albero({{"P_1", "G_1", "2", "2", "uno", "one", NULLO, NULLO, "Root/Uno"},
                                            {"P_2", "G_1", "1", "2", "due", "two", " /1/2/ ", " /A/ ", NULLO},
                                            {"R", NULLO, NULLO, "0", "Radice", "Root", NULLO, NULLO, NULLO},
                                            {NULLO, "R", "1", "1", "x", "x", NULLO, NULLO, NULLO},
                                            {"G_1", "R", "70000", "1", NULLO, "Group", "", "", "Root"}}));
    Collection_Albero albero;
    albero.Add("P_1");
    Carica_Struttura_Albero_Web(prova.DB, "1", albero);

    EXPECT_EQ(Chiavi(albero), QStringList({"R", "G_1", "P_2", "P_1"}));
    EXPECT_EQ(albero.Item("G_1").Testo_Visualizzato_, Valore()) << "a missing caption stays NULL";
    EXPECT_EQ(albero.Item("G_1").Ordine, 32767);
    const Class_Albero& due = albero.Item("P_2");
    EXPECT_EQ(due.Testo_Visualizzato_.Testo(), "due");
    EXPECT_EQ(due.Key_Padre + due.Key_Mercato + due.Key_Gruppo, "G_1/1/2//A/");

    Carica_Struttura_Albero_Web(prova.DB, "02", albero);
    EXPECT_EQ(albero.Item("P_2").Testo_Visualizzato_.Testo(), "two");
    EXPECT_EQ(albero.Count(), 4);
}

TEST(Carica_Struttura_Albero_Web, FailsOnAMissingLanguageOrATwofoldKey) {
    Collection_Albero albero;
    const Catalogo_Aperto doppia(Con_Albero(
        {{"P_1", "R", "1", "1", "a", "a", "", "", ""}, {"P_1", "R", "2", "1", "b", "b", "", "", ""}}));
    EXPECT_THROW(Carica_Struttura_Albero_Web(doppia.DB, "1", albero), Errore_Collezione);
    EXPECT_THROW(Carica_Struttura_Albero_Web(doppia.DB, "12", albero), Errore_DB);
}

}  // namespace
