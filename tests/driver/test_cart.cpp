// An order of the sample from its first part to its last change, driven from outside.

#include <gmock/gmock.h>

#include "driver/programma.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

class Ordine : public testing::Test {
  protected:
    Ordine() {
        p.Fai("filter", {{"lingua", "2"}, {"mercato", "1"}});
        p.Fai("click", {{"object", "Label_consulta_catalogo"}});
    }
    void Vai(std::initializer_list<const char*> nodi) {
        for (const char* key : nodi)
            p.Fai("click_node", {{"key", key}});
    }
    void Clic_Cella(const char* griglia, int riga, int colonna) {
        p.Fai("click_cell", {{"object", griglia}, {"row", riga}, {"col", colonna}});
    }
    void Scrivi(const char* casella, const char* testo) {
        p.Fai("type", {{"object", casella}, {"text", testo}});
    }
    void Tasto(const char* tasto) { p.Fai("key", {{"key", tasto}}); }
    /// The store, each line as "product: key x quantity (note)".
    std::vector<std::string> Righe() {
        std::vector<std::string> righe;
        for (const QJsonValue& prodotto : p.Fai("store")["store"].toArray())
            for (const QJsonValue& r : prodotto["lines"].toArray())
                righe.push_back(QString("%1: %2 x %3 (%4)")
                                    .arg(prodotto["product"].toString(), r["key"].toString())
                                    .arg(r["quantity"].toDouble())
                                    .arg(r["note"].toString())
                                    .toStdString());
        return righe;
    }
    /// A column of a grid; columns are counted from the right for a negative number.
    std::vector<std::string> Colonna(const char* griglia, int colonna) {
        std::vector<std::string> testi;
        for (const QJsonValue& riga : p.Fai("grid", {{"object", griglia}})["rows"].toArray()) {
            const QJsonArray celle = riga.toArray();
            testi.push_back(
                celle[colonna < 0 ? celle.size() + colonna : colonna]["text"].toString().toStdString());
        }
        return testi;
    }
    /// The hotspots in the cart's blue.
    std::vector<std::string> Blu() {
        std::vector<std::string> blu;
        for (const QJsonValue& h : p.Fai("canvas")["hotspots"].toArray())
            if (h["colour"].toInt() == 0x0000FF &&
                std::find(blu.begin(), blu.end(), h["string"].toString().toStdString()) == blu.end())
                blu.push_back(h["string"].toString().toStdString());
        std::sort(blu.begin(), blu.end());
        return blu;
    }
    Programma p;
};

constexpr const char* CARRELLO = "Form_Carrello_Prodotto/Griglia";

TEST_F(Ordine, IsMadeChangedAndKeptAcrossLanguageAndMarket) {
    // From the list, and from hotspots of each form.
    Vai({"G_ENG", "G_ENG_BLK", "P_1010"});
    p.Premi("KEY_CARELLO_PARZIALE");
    Clic_Cella("Griglia_Distinta", 2, 1);
    p.HotSpot("16", "click");
    p.HotSpot("15", "click");  // two parts
    Clic_Cella("Form_Seleziona_componente/Griglia", 2, 1);
    EXPECT_THAT(Blu(), ElementsAre("15", "16", "2"));
    p.HotSpot("16", "double_click");  // one step more, not two
    EXPECT_THAT(Righe(), ElementsAre("P_1010: TZ.1010.010-2 x 1 ()", "P_1010: TZ.9010.005-16 x 16 ()",
                                     "P_1010: TZ.9100.020-15 x 1 ()"));
    EXPECT_EQ(Colonna(CARRELLO, 2).size(), 5u);

    // Its quantity is always a multiple of its step, 8.
    Clic_Cella(CARRELLO, 2, 10);
    Scrivi("Form_Carrello_Prodotto/Text_Qta", "17");
    Tasto("Tab");
    p.Fai("type", {{"object", "Form_Carrello_Prodotto/Text_Note"}, {"text", "urgent"}});
    Tasto("Return");
    EXPECT_THAT(Righe(), Contains("P_1010: TZ.9010.005-16 x 24 (urgent)"));

    // Removing takes the blue off; the others keep theirs.
    Clic_Cella(CARRELLO, 1, 0);
    EXPECT_THAT(Blu(), ElementsAre("15", "16"));
    Vai({"G_TRA", "P_2010"});
    p.HotSpot("ASSOCIAZIONE#$#1", "click");
    EXPECT_THAT(Blu(), ElementsAre("ASSOCIAZIONE#$#1"));
    EXPECT_EQ(Colonna(CARRELLO, 2).size(), 3u) << "the cart of the product on show";

    p.Premi("KEY_EVADI_ORDINE");
    const auto prezzi = Colonna("Griglia_Evadi", -1);
    ASSERT_EQ(prezzi.size(), 5u) << "three lines, total, discount";
    EXPECT_THAT(Colonna("Griglia_Evadi", 1), ElementsAre("Crankcase", "Crankcase", "Clutch", "", ""));

    // The other language and market: the same lines under their own names and prices.
    p.Fai("filter", {{"lingua", "4"}, {"mercato", "3"}});
    EXPECT_FALSE(p.Fai("grid", {{"object", CARRELLO}})["visible"].toBool()) << "no product is on show";
    p.Fai("click", {{"object", "Label_consulta_catalogo"}});
    for (int volta = 0; volta < 2; ++volta)  // kept: leaving the order another way leaves its button pressed
        p.Premi("KEY_EVADI_ORDINE");
    const auto altri = Colonna("Griglia_Evadi", -1);
    ASSERT_EQ(altri.size(), 5u);
    for (size_t i = 0; i < 4; ++i)
        EXPECT_NE(altri[i], prezzi[i]) << i;
    EXPECT_EQ(Colonna("Griglia_Evadi", 1).front(), "Kurbelgehäuse");
    EXPECT_THAT(Righe(), Contains("P_1010: TZ.9010.005-16 x 24 (urgent)"));

    // Whatever is removed here, the screen shows what is left.
    Clic_Cella("Griglia_Evadi", 1, 0);
    EXPECT_EQ(Righe().size(), 2u);
    EXPECT_EQ(Colonna("Griglia_Evadi", 0).size(), 4u);
}

}  // namespace
