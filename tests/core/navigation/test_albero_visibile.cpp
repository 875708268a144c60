#include <gmock/gmock.h>

#include "../base/righe.h"
#include "core/navigation/albero_visibile.h"
#include "support/catalogo_aperto.h"

namespace {

using testing::HasSubstr;

/// Nodes between "|", each "key,parent,caption,markets,groups"; what isn't given is empty.
void Riempi(Collection_Albero& modello, const char* nodi) {
    for (const QString& riga : QString(nodi).split(u'|')) {
        const QStringList campi = riga.split(u',');
        Class_Albero& nodo = modello.Add(campi[0]);
        nodo.Key_Padre = campi[1];
        nodo.Testo_Visualizzato_ = Valore(campi[2]);
        nodo.Key_Mercato = campi.value(3);
        nodo.Key_Gruppo = campi.value(4);
    }
}

/// The tree as one text, "key(children)", in the order of the widget.
QString Disegna(const std::vector<Nodo_Visibile*>& nodi) {
    QStringList testi;
    for (const Nodo_Visibile* nodo : nodi)
        testi.append(nodo->Figli.empty() ? nodo->Key : nodo->Key + u'(' + Disegna(nodo->Figli) + u')');
    return testi.join(u' ');
}

Catalogo_Di_Prova Con_Matricole() {
    Catalogo_Di_Prova catalogo;
    return catalogo.Tabella("Matricola_Nodo", {"Key_Prodotto", "Matricola", "Min_Matricola", "Max_Matricola"},
                            {{"P_1", "A12", {}, {}},
                             {"P_3", "a12", {}, {}},
                             {"P_3", "O'Neill", {}, {}},
                             {"p_2", {}, "B10", "B19"}});
}

class Costruzione : public testing::Test {
  protected:
    void Costruisci(int mercato, const QString& gruppo, const QString& matricola = {}) {
        Crea_Albero_Da_Struttura(
            prova.DB, modello, 1, mercato, matricola, gruppo, [](int) { return QString(); }, albero);
    }
    Catalogo_Aperto prova{Con_Matricole()};
    Collection_Albero modello;
    Albero_Visibile albero;
};

TEST_F(Costruzione, FiltersAndParentsDecideWhichNodesStand) {
    Riempi(modello,
           "R,,Root,/9/|G_1,R,a|G_2,R,b,/1/2/|G_3,R,c,,/AB/C/|Z_1,R,z|g_1,R,z|P_1,G_1,d|X_1,G_2,e|"
           "P_2,G_3,f,/ 1/ |P_3,G_9,g|P_4,Z_1,h|P_5,R,i,/13/,/a//");
    // In "/A/" the empty token finds "//".
    const std::tuple<int, const char*, const char*> casi[] = {{1, "", "G_1(P_1) G_2(X_1) G_3"},
                                                              {3, "", "G_1(P_1) G_3"},
                                                              {13, "", "G_1(P_1) G_3 P_5"},
                                                              {1, "/A/C/", "G_1(P_1) G_2(X_1) G_3"},
                                                              {1, "/ab/", "G_1(P_1) G_2(X_1)"},
                                                              {13, "/A/", "G_1(P_1) P_5"},
                                                              {13, "A", "G_1(P_1)"}};
    for (const auto& [mercato, gruppo, atteso] : casi) {
        Costruisci(mercato, gruppo);
        EXPECT_EQ(Disegna(albero.Primo_Livello()), atteso) << mercato << ' ' << gruppo;
    }
}

TEST_F(Costruzione, ImagesGoByTheKind) {
    Riempi(modello, "G_1,R,a|P_1,G_1,b|X_1,G_1,c");
    Costruisci(1, {});
    for (const auto& [key, immagine] : {std::pair{"G_1", 1}, {"P_1", 3}, {"X_1", 5}})
        EXPECT_EQ(albero.Nodo(key)->Image, immagine) << key;
}

TEST_F(Costruzione, ASerialMarksOpensAndSelects) {
    Riempi(modello, "R,,Root|G_1,R,a|G_2,R,b|P_1,G_1,c|P_2,G_1,d|P_3,G_2,e");
    // The serial, the nodes in bold, the open ones, the selected one.
    for (const QStringList& caso : Righe("===|A12=P_1 P_3=G_1 G_2 P_1 P_3=P_3|B15=P_2=G_1 P_2=P_2|"
                                         "O''Neill=P_3=G_2 P_3=P_3|12===")) {
        Costruisci(1, {}, caso[0]);
        QStringList segnati, aperti;
        for (const Nodo_Visibile& nodo : albero.Nodi()) {
            segnati += nodo.Bold ? QStringList(nodo.Key) : QStringList();
            aperti += nodo.Expanded ? QStringList(nodo.Key) : QStringList();
        }
        const QString selezionato = albero.SelectedItem() ? albero.SelectedItem()->Key : QString();
        EXPECT_EQ((QStringList{caso[0], segnati.join(' '), aperti.join(' '), selezionato}), caso);
    }
}

TEST_F(Costruzione, AQuoteInAKeyFailsWithASerialOnly) {
    Riempi(modello, "P_1',R,a");
    EXPECT_NO_THROW(Costruisci(1, {}));
    EXPECT_THROW(Costruisci(1, {}, "A12"), Errore_DB);
}

TEST_F(Costruzione, ANodeWithoutACaptionFailsUnlessItIsHidden) {
    Riempi(modello, "P_1,R,a|P_2,R,b,/2/");
    modello.Item("P_2").Testo_Visualizzato_ = Valore();
    EXPECT_NO_THROW(Costruisci(1, {}));
    EXPECT_THAT([&] { Costruisci(2, {}); }, testing::ThrowsMessage<std::runtime_error>(HasSubstr("\"P_2\"")));
}

TEST_F(Costruzione, TheListOfCaptionsHoldsEachOnceInOrderAndStaysWithAnEmptyModel) {
    Riempi(modello, "G_1,R,b|G_2,R,a|P_1,G_1,B|P_2,G_2,b|P_3,G_2,");
    for (int volta = 0; volta < 2; ++volta)
        Costruisci(1, {});
    modello.Svuota();
    Costruisci(1, {});
    EXPECT_EQ(albero.Combo_Nodi, QStringList({"b", "a", "B", ""}));
    EXPECT_EQ(albero.Count(), 5);
}

TEST(Albero_Visibile, OpensClosesAndWalks) {
    Albero_Visibile albero;
    Nodo_Visibile& a = albero.Add(nullptr, "R", "A");
    Nodo_Visibile& b = albero.Add(nullptr, "G_1", "B");
    Nodo_Visibile& c = albero.Add(&a, "G_2", "C");
    Nodo_Visibile& d = albero.Add(&c, "P_1", "D");
    EXPECT_EQ(albero.In_Ordine(), (std::vector<const Nodo_Visibile*>{&a, &c, &d, &b}));
    EXPECT_EQ(Albero_Visibile::FullPath(d), "A\\C\\D");

    albero.Seleziona(&d);
    EXPECT_TRUE(a.Expanded && c.Expanded);
    EXPECT_FALSE(b.Expanded || d.Expanded);
    albero.Espandi_Albero(true);
    EXPECT_TRUE(b.Expanded && d.Expanded);
    albero.Espandi_Albero(false);
    EXPECT_TRUE(a.Expanded) << "the key R stays open";
    EXPECT_FALSE(b.Expanded || c.Expanded || d.Expanded);

    albero.Clear();
    EXPECT_EQ(albero.Nodo("G_1"), nullptr);
    EXPECT_FALSE(albero.Albero_Ha_Selezione());
}

TEST(Titolo_Albero, TranslatesTheRootsCaption) {
    const Catalogo_Aperto prova(
        Catalogo_Di_Prova()
            .Cambia("Albero", 1, "Descrizione_Nodo", "L'indice")
            .Tabella("Traduzioni_Albero",
                     {"Descrizione_Nodo", "Traduzione_1", "Traduzione_2", "Traduzione_3"},
                     {{"altro", "x", {}, {}}, {"L'indice", "The index", {}, "  "}}));
    EXPECT_EQ(Titolo_Albero(prova.DB, 1), "The index");
    for (const int lingua : {2, 3, 12})
        EXPECT_EQ(Titolo_Albero(prova.DB, lingua), "L'indice") << lingua;
}

TEST(Controllo_SottoProdotto, ReadsTheProductOfALink) {
    for (const QStringList& riga :
         Righe("PRODOTTO#$#P_1=P_1|SOTTO_PRODOTTO#$# P_2 =P_2|CODICI#$#P_1=|prodotto#$#P_1=|"
               "qualcosa## P_3 ##x=P_3|CODICI#$#a##P_4=P_4|PRODOTTO#$#=|x##=|="))
        EXPECT_EQ(Controllo_SottoProdotto(riga[0]), riga[1]) << qPrintable(riga[0]);
}

}  // namespace
