#include <gtest/gtest.h>

#include "core/base/testo.h"
#include "finestra_finta.h"
#include "support/fakes.h"

namespace {

class Testi_Finestra : public testing::Test {
  protected:
    Testi_Finestra() { testi.Apri_Database_Traduzioni(sorgente.Percorso()); }
    void Riga(const char* oggetto, const char* indice, const char* testo, const char* suggerimento = "NULL") {
        sorgente.Riga(u"'Form_Prova'"_qs, QString::fromUtf8(oggetto), QString::fromUtf8(indice),
                      QString::fromUtf8(testo), QString::fromUtf8(suggerimento));
    }
    Stato_Controllo& Aggiungi(const char* tipo, const char* nome) {
        Stato_Controllo stato;
        stato.tipo = QString::fromUtf8(tipo);
        stato.nome = QString::fromUtf8(nome);
        stato.testo = u"designed"_qs;
        stato.suggerimento = u"designed tip"_qs;
        finestra.controlli.push_back(stato);
        return finestra.controlli.back();
    }
    Database_Testi sorgente;
    Messaggi_Finti messaggi;
    Collection_Traduzioni testi{messaggi};
    Finestra_Finta finestra;
};

TEST_F(Testi_Finestra, EachTypeTakesWhatIsItsOwn) {
    const std::pair<const char*, std::pair<const char*, const char*>> casi[] = {
        {"Form", {"caption", "tip"}},
        {"Label", {"caption", "tip"}},
        {"CheckBox", {"caption", "tip"}},
        {"Frame", {"caption", "tip"}},
        {"OptionButton", {"caption", "tip"}},
        {"CommandButton", {"caption", "tip"}},
        {"Menu", {"caption", "tip"}},
        {"Image", {"designed", "tip"}},
        {"TextBox", {"designed", "tip"}},
        {"ComboBox", {"designed", "tip"}},
        {"VScrollBar", {"designed", "tip"}},
        {"HScrollBar", {"designed", "tip"}},
        {"Toolbar", {"designed", "designed tip"}},
        {"SSTab", {"designed", "designed tip"}},
        {"ListView", {"designed", "designed tip"}},
        {"TreeView", {"designed", "designed tip"}},
        {"label", {"designed", "designed tip"}},
    };
    for (const auto& [tipo, attesi] : casi) {
        Aggiungi(tipo, tipo);
        if (QByteArrayView(tipo) != "label")
            Riga((QByteArray("'") + tipo + "'").constData(), "NULL", "'  caption '", "' tip  '");
    }
    testi.Carica_Testi_Form(finestra, u"2"_qs);
    for (size_t i = 0; i < std::size(casi); ++i) {
        EXPECT_EQ(finestra.controlli[i].testo, QString::fromUtf8(casi[i].second.first)) << casi[i].first;
        EXPECT_EQ(finestra.controlli[i].suggerimento, QString::fromUtf8(casi[i].second.second))
            << casi[i].first;
    }
}

TEST_F(Testi_Finestra, NullBecomesEmptyAndOnlyBlanksAreTrimmed) {
    Aggiungi("Label", "Nullo");
    Aggiungi("Label", "A_Capo");
    Riga("'Nullo'", "NULL", "NULL");
    Riga("'A_Capo'", "NULL", "' text\r\n'");
    testi.Carica_Testi_Form(finestra, u"2"_qs);
    EXPECT_EQ(finestra.controlli[0].testo, QString());
    EXPECT_EQ(finestra.controlli[0].suggerimento, QString());
    EXPECT_EQ(finestra.controlli[1].testo, u"text\r\n"_qs);
}

TEST_F(Testi_Finestra, PartsOfToolbarsTabsAndLists) {
    struct Caso {
        const char* testo;
        int parti;
        QStringList attese;
    };
    const QString fine = FINE_TOKEN;
    const Caso casi[] = {
        {"'a/b/c'", 5, {u"a"_qs, u"b"_qs, u"c"_qs, fine, fine}},
        {"'a/b/c'", 2, {u"a"_qs, u"b"_qs}},
        {"'a//c/'", 4, {u"a"_qs, u""_qs, u"c"_qs, fine}},
        {"' a / b '", 2, {u"a "_qs, u" b"_qs}},
        {"''", 2, {fine, fine}},
        {"NULL", 2, {fine, fine}},
        {"'a'", 0, {}},
    };
    for (const char* tipo : {"Toolbar", "SSTab", "ListView"}) {
        for (const Caso& caso : casi) {
            sorgente.Esegui(u"DELETE * FROM Traduzioni_Viewer_System"_qs);
            Riga("'Parti'", "NULL", caso.testo, "'tip'");
            finestra.controlli.clear();
            Aggiungi(tipo, "Parti").parti.resize(caso.parti);
            testi.Carica_Testi_Form(finestra, u"2"_qs);
            EXPECT_EQ(finestra.controlli[0].parti, caso.attese) << tipo << ' ' << caso.testo;
        }
    }
}

TEST_F(Testi_Finestra, MembersOfControlArraysGoByTheirIndex) {
    Aggiungi("Label", "Serie").indice = 2;
    Aggiungi("Label", "Serie").indice = 0;
    Aggiungi("Label", "Serie").indice = 7;
    Aggiungi("Label", "Serie");
    Riga("'Serie'", "'0'", "'zero'");
    Riga("'Serie'", "'2'", "'two'");
    testi.Carica_Testi_Form(finestra, u"2"_qs);
    EXPECT_EQ(finestra.controlli[0].testo, u"two"_qs);
    EXPECT_EQ(finestra.controlli[1].testo, u"zero"_qs);
    EXPECT_EQ(finestra.controlli[2].testo, u"designed"_qs);
    EXPECT_EQ(finestra.controlli[3].testo, u"zero"_qs) << "no array member: the first row whatever its index";
}

TEST_F(Testi_Finestra, ARefusedAssignmentStopsNothing) {
    Aggiungi("Menu", "A").rifiuta_suggerimento = true;
    Aggiungi("Label", "B").rifiuta_testo = true;
    Aggiungi("Label", "L'ultima");
    for (const char* nome : {"'A'", "'B'", "'L''ultima'"})
        Riga(nome, "NULL", "'caption'", "'tip'");
    Riga("'Form_Prova'", "NULL", "'title'");
    testi.Carica_Testi_Form(finestra, u"2"_qs);
    EXPECT_EQ(finestra.controlli[0].testo, u"caption"_qs);
    EXPECT_EQ(finestra.controlli[0].suggerimento, u"designed tip"_qs);
    EXPECT_EQ(finestra.controlli[1].testo, u"designed"_qs);
    EXPECT_EQ(finestra.controlli[1].suggerimento, u"tip"_qs);
    EXPECT_EQ(finestra.controlli[2].testo, u"caption"_qs);
    EXPECT_EQ(finestra.titolo, u"title"_qs);
}

TEST_F(Testi_Finestra, Title) {
    testi.Carica_Testi_Form(finestra, u"2"_qs);
    EXPECT_EQ(finestra.titolo, u"designed title"_qs) << "no row";
    Riga("'Form_Prova'", "' '", "'  the title '");
    testi.Carica_Testi_Form(finestra, u"2"_qs);
    EXPECT_EQ(finestra.titolo, u"the title"_qs);
    testi.Carica_Testi_Form(finestra, u"1"_qs);
    EXPECT_EQ(finestra.titolo, QString()) << "a NULL title";
}

TEST_F(Testi_Finestra, WithoutALanguageATableOrADatabaseTheDesignStays) {
    Aggiungi("Label", "A");
    Aggiungi("Toolbar", "T").parti = QStringList{u"designed part"_qs};
    Riga("'A'", "NULL", "'caption'", "'tip'");
    Riga("'T'", "NULL", "'part'");
    Riga("'Form_Prova'", "NULL", "'title'");

    testi.Carica_Testi_Form(finestra, QString());
    testi.Carica_Testi_Form(finestra, u"12"_qs);
    sorgente.Esegui(u"ALTER TABLE Traduzioni_Viewer_System RENAME TO Altra"_qs);
    testi.Carica_Testi_Form(finestra, u"2"_qs);
    testi.Chiudi_Database_Traduzioni();
    testi.Carica_Testi_Form(finestra, u"2"_qs);

    EXPECT_EQ(finestra.controlli[0].testo, u"designed"_qs);
    EXPECT_EQ(finestra.controlli[0].suggerimento, u"designed tip"_qs);
    EXPECT_EQ(finestra.controlli[1].parti, QStringList{u"designed part"_qs});
    EXPECT_EQ(finestra.titolo, u"designed title"_qs);
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

}  // namespace
