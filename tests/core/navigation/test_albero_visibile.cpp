#include <gmock/gmock.h>

#include "core/navigation/albero_visibile.h"
#include "support/catalogo_aperto.h"

namespace {

using testing::HasSubstr;

QString Senza_Titolo(int) {
    return {};
}

struct Riga_Albero {
    QString key, padre, testo, mercato, gruppo;
};

void Riempi(Collection_Albero& modello, const std::vector<Riga_Albero>& righe) {
    for (const Riga_Albero& riga : righe) {
        Class_Albero& nodo = modello.Add(riga.key);
        nodo.Key_Padre = riga.padre;
        nodo.Testo_Visualizzato_ = Valore(riga.testo);
        nodo.Key_Mercato = riga.mercato;
        nodo.Key_Gruppo = riga.gruppo;
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
    for (const auto& [key, matricola] : {std::pair{"P_1", "A12"}, {"P_3", "a12"}, {"P_3", "O'Neill"}})
        catalogo.Riga(u"Matricola_Nodo"_qs, {{"Key_Prodotto", key}, {"Matricola", matricola}});
    catalogo.Riga(u"Matricola_Nodo"_qs,
                  {{"Key_Prodotto", "p_2"}, {"Min_Matricola", "B10"}, {"Max_Matricola", "B19"}});
    return catalogo;
}

class Costruzione : public testing::Test {
  protected:
    void Costruisci(int mercato, const QString& gruppo, const QString& matricola = {}) {
        Crea_Albero_Da_Struttura(prova.DB, modello, 1, mercato, matricola, gruppo, Senza_Titolo, albero);
    }
    Catalogo_Aperto prova{Con_Matricole()};
    Collection_Albero modello;
    Albero_Visibile albero;
};

TEST_F(Costruzione, FiltersAndParentsDecideWhichNodesStand) {
    Riempi(modello, {{u"R"_qs, u""_qs, u"Root"_qs, u"/9/"_qs, u""_qs},
                     {u"G_1"_qs, u"R"_qs, u"a"_qs, u""_qs, u""_qs},
                     {u"G_2"_qs, u"R"_qs, u"b"_qs, u"/1/2/"_qs, u""_qs},
                     {u"G_3"_qs, u"R"_qs, u"c"_qs, u""_qs, u"/AB/C/"_qs},
                     {u"Z_1"_qs, u"R"_qs, u"z"_qs, u""_qs, u""_qs},
                     {u"g_1"_qs, u"R"_qs, u"z"_qs, u""_qs, u""_qs},
                     {u"P_1"_qs, u"G_1"_qs, u"d"_qs, u""_qs, u""_qs},
                     {u"X_1"_qs, u"G_2"_qs, u"e"_qs, u""_qs, u""_qs},
                     {u"P_2"_qs, u"G_3"_qs, u"f"_qs, u"/ 1/ "_qs, u""_qs},
                     {u"P_3"_qs, u"G_9"_qs, u"g"_qs, u""_qs, u""_qs},
                     {u"P_4"_qs, u"Z_1"_qs, u"h"_qs, u""_qs, u""_qs},
                     {u"P_5"_qs, u"R"_qs, u"i"_qs, u"/13/"_qs, u"/a//"_qs}});
    struct Caso {
        int mercato;
        QString gruppo, atteso;
    };
    const Caso casi[] = {
        {1, u""_qs, u"G_1(P_1) G_2(X_1) G_3"_qs},
        {3, u""_qs, u"G_1(P_1) G_3"_qs},
        {13, u""_qs, u"G_1(P_1) G_3 P_5"_qs},
        {1, u"/A/"_qs, u"G_1(P_1) G_2(X_1)"_qs},
        {1, u"/A/C/"_qs, u"G_1(P_1) G_2(X_1) G_3"_qs},
        {1, u"/ab/"_qs, u"G_1(P_1) G_2(X_1)"_qs},
        {13, u"/A/"_qs, u"G_1(P_1) P_5"_qs},  // the empty token finds "//"
        {13, u"A"_qs, u"G_1(P_1)"_qs},
    };
    for (const Caso& caso : casi) {
        Costruisci(caso.mercato, caso.gruppo);
        EXPECT_EQ(Disegna(albero.Primo_Livello()), caso.atteso)
            << caso.mercato << ' ' << qPrintable(caso.gruppo);
        EXPECT_FALSE(albero.Albero_Ha_Selezione());
    }
}

TEST_F(Costruzione, ImagesGoByTheKind) {
    Riempi(modello, {{u"G_1"_qs, u"R"_qs, u"a"_qs, {}, {}},
                     {u"P_1"_qs, u"G_1"_qs, u"b"_qs, {}, {}},
                     {u"X_1"_qs, u"G_1"_qs, u"c"_qs, {}, {}}});
    Costruisci(1, {});
    for (const auto& [key, immagine] : {std::pair{u"G_1"_qs, 1}, {u"P_1"_qs, 3}, {u"X_1"_qs, 5}}) {
        ASSERT_TRUE(albero.Esiste_Nodo_Albero(key));
        EXPECT_EQ(albero.Nodo(key)->Image, immagine);
        EXPECT_EQ(albero.Nodo(key)->SelectedImage, immagine + 1);
    }
}

TEST_F(Costruzione, ASerialMarksOpensAndSelects) {
    Riempi(modello, {{u"R"_qs, u""_qs, u"Root"_qs, {}, {}},
                     {u"G_1"_qs, u"R"_qs, u"a"_qs, {}, {}},
                     {u"G_2"_qs, u"R"_qs, u"b"_qs, {}, {}},
                     {u"P_1"_qs, u"G_1"_qs, u"c"_qs, {}, {}},
                     {u"P_2"_qs, u"G_1"_qs, u"d"_qs, {}, {}},
                     {u"P_3"_qs, u"G_2"_qs, u"e"_qs, {}, {}}});
    struct Caso {
        QString matricola;
        QStringList segnati, aperti;
        QString selezionato;
    };
    const Caso casi[] = {
        {u""_qs, {}, {}, u""_qs},
        {u"A12"_qs, {u"P_1"_qs, u"P_3"_qs}, {u"G_1"_qs, u"G_2"_qs, u"P_1"_qs, u"P_3"_qs}, u"P_3"_qs},
        {u"B15"_qs, {u"P_2"_qs}, {u"G_1"_qs, u"P_2"_qs}, u"P_2"_qs},
        {u"O''Neill"_qs, {u"P_3"_qs}, {u"G_2"_qs, u"P_3"_qs}, u"P_3"_qs},
        {u"12"_qs, {}, {}, u""_qs},
    };
    for (const Caso& caso : casi) {
        Costruisci(1, {}, caso.matricola);
        QStringList segnati, aperti;
        for (const Nodo_Visibile& nodo : albero.Nodi()) {
            if (nodo.Bold)
                segnati.append(nodo.Key);
            if (nodo.Expanded)
                aperti.append(nodo.Key);
            EXPECT_EQ(nodo.Bold, !caso.matricola.isEmpty() &&
                                     prova.DB.Matricola_Valida_Prodotto(nodo.Key, caso.matricola));
        }
        EXPECT_EQ(segnati, caso.segnati) << qPrintable(caso.matricola);
        EXPECT_EQ(aperti, caso.aperti) << qPrintable(caso.matricola);
        EXPECT_EQ(albero.SelectedItem() ? albero.SelectedItem()->Key : QString(), caso.selezionato);
    }
}

TEST_F(Costruzione, AQuoteInAKeyFailsWithASerialOnly) {
    Riempi(modello, {{u"P_1'"_qs, u"R"_qs, u"a"_qs, {}, {}}});
    EXPECT_NO_THROW(Costruisci(1, {}));
    EXPECT_THROW(Costruisci(1, {}, u"A12"_qs), Errore_DB);
}

TEST_F(Costruzione, ANodeWithoutACaptionFailsUnlessItIsHidden) {
    Riempi(modello, {{u"P_1"_qs, u"R"_qs, u"a"_qs, {}, {}}, {u"P_2"_qs, u"R"_qs, u"b"_qs, u"/2/"_qs, {}}});
    modello.Item(u"P_2"_qs).Testo_Visualizzato_ = Valore();
    EXPECT_NO_THROW(Costruisci(1, {}));
    try {
        Costruisci(2, {});
        FAIL();
    } catch (const std::runtime_error& errore) {
        EXPECT_THAT(errore.what(), HasSubstr("\"P_2\""));
    }
}

TEST_F(Costruzione, AnEmptyModelLeavesTreeAndTitle) {
    Riempi(modello, {{u"G_1"_qs, u"R"_qs, u"a"_qs, {}, {}}});
    const auto titolo = [](int lingua) { return u"Titolo %1"_qs.arg(lingua); };
    Crea_Albero_Da_Struttura(prova.DB, modello, 3, 1, {}, {}, titolo, albero);
    modello.Svuota();
    Crea_Albero_Da_Struttura(prova.DB, modello, 4, 1, {}, {}, titolo, albero);
    EXPECT_EQ(albero.Titolo, u"Titolo 3");
    EXPECT_EQ(albero.Count(), 1);
    EXPECT_EQ(albero.Combo_Nodi, QStringList({u"a"_qs}));
}

TEST_F(Costruzione, TheListOfCaptionsHoldsEachOnceInOrder) {
    Riempi(modello, {{u"G_1"_qs, u"R"_qs, u"b"_qs, {}, {}},
                     {u"G_2"_qs, u"R"_qs, u"a"_qs, {}, {}},
                     {u"P_1"_qs, u"G_1"_qs, u"B"_qs, {}, {}},
                     {u"P_2"_qs, u"G_2"_qs, u"b"_qs, {}, {}},
                     {u"P_3"_qs, u"G_2"_qs, u""_qs, {}, {}}});
    Costruisci(1, {});
    EXPECT_EQ(albero.Combo_Nodi, QStringList({u"b"_qs, u"a"_qs, u"B"_qs, u""_qs}));
    Costruisci(1, {});
    EXPECT_EQ(albero.Combo_Nodi.size(), 4);
}

TEST(Albero_Visibile, OpensClosesAndWalks) {
    Albero_Visibile albero;
    Nodo_Visibile& a = albero.Add(nullptr, u"R"_qs, u"A"_qs);
    Nodo_Visibile& b = albero.Add(nullptr, u"G_1"_qs, u"B"_qs);
    Nodo_Visibile& c = albero.Add(&a, u"G_2"_qs, u"C"_qs);
    Nodo_Visibile& d = albero.Add(&c, u"P_1"_qs, u"D"_qs);
    EXPECT_EQ(albero.In_Ordine(), (std::vector<const Nodo_Visibile*>{&a, &c, &d, &b}));
    EXPECT_EQ(Albero_Visibile::FullPath(d), u"A\\C\\D");
    EXPECT_EQ(b.Riga, 1);

    albero.Seleziona(&d);
    EXPECT_TRUE(a.Expanded && c.Expanded);
    EXPECT_FALSE(b.Expanded || d.Expanded);
    albero.Espandi_Albero(true);
    EXPECT_TRUE(b.Expanded && d.Expanded);
    albero.Espandi_Albero(false);
    EXPECT_TRUE(a.Expanded) << "the key R stays open";
    EXPECT_FALSE(b.Expanded || c.Expanded || d.Expanded);

    albero.Seleziona(nullptr);
    EXPECT_FALSE(albero.Albero_Ha_Selezione());
    albero.Seleziona(&b);
    albero.Clear();
    EXPECT_EQ(albero.Count(), 0);
    EXPECT_FALSE(albero.Albero_Ha_Selezione());
    EXPECT_EQ(albero.Nodo(u"G_1"_qs), nullptr);
}

TEST(Titolo_Albero, TranslatesTheRootsCaption) {
    const Catalogo_Aperto prova(
        Catalogo_Di_Prova()
            .Svuota_Tabella(u"Albero"_qs)
            .Svuota_Tabella(u"Traduzioni_Albero"_qs)
            .Riga(u"Albero"_qs, {{"Key_Prodotto", "R"}, {"Descrizione_Nodo", "L'indice"}})
            .Riga(u"Traduzioni_Albero"_qs, {{"Descrizione_Nodo", "altro"}, {"Traduzione_1", "x"}})
            .Riga(u"Traduzioni_Albero"_qs,
                  {{"Descrizione_Nodo", "L'indice"}, {"Traduzione_1", "The index"}, {"Traduzione_3", "  "}}));
    EXPECT_EQ(Titolo_Albero(prova.DB, 1), u"The index");
    EXPECT_EQ(Titolo_Albero(prova.DB, 2), u"L'indice");
    EXPECT_EQ(Titolo_Albero(prova.DB, 3), u"L'indice");
    EXPECT_EQ(Titolo_Albero(prova.DB, 12), u"L'indice");
    const Catalogo_Aperto senza(Catalogo_Di_Prova().Rimuovi_Tabella(u"Traduzioni_Albero"_qs));
    EXPECT_EQ(Titolo_Albero(senza.DB, 1), u"Prova");
}

TEST(Controllo_SottoProdotto, ReadsTheProductOfALink) {
    const std::pair<QString, QString> casi[] = {
        {u"PRODOTTO#$#P_1"_qs, u"P_1"_qs},
        {u"SOTTO_PRODOTTO#$# P_2 "_qs, u"P_2"_qs},
        {u"CODICI#$#P_1"_qs, u""_qs},
        {u"prodotto#$#P_1"_qs, u""_qs},
        {u"qualcosa## P_3 ##x"_qs, u"P_3"_qs},
        {u"CODICI#$#a##P_4"_qs, u"P_4"_qs},
        {u"PRODOTTO"_qs, u""_qs},
        {u"PRODOTTO#$#"_qs, u""_qs},
        {u"x##"_qs, u""_qs},
        {u""_qs, u""_qs},
    };
    for (const auto& [stringa, atteso] : casi)
        EXPECT_EQ(Controllo_SottoProdotto(stringa), atteso) << qPrintable(stringa);
}

}  // namespace
