// Every hotspot of every drawing of the sample, reached by its place on the page: the real program, driven
// from outside as the user's mouse would drive it.

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "driver/programma.h"

namespace {

/// What the canvas told, each event as "event string".
QStringList Eventi(const QJsonObject& tavola) {
    QStringList eventi;
    for (const QJsonValue& e : tavola["events"].toArray())
        eventi << e["event"].toString() + u' ' + e["string"].toString();
    return eventi;
}

/// The strings of the hotspots, in their order; only the lit ones with `evidenti`.
QStringList Stringhe(const QJsonObject& tavola, bool evidenti = false) {
    QStringList stringhe;
    for (const QJsonValue& h : tavola["hotspots"].toArray())
        if (!evidenti || h["highlighted"].toBool())
            stringhe << h["string"].toString();
    stringhe.removeDuplicates();
    return stringhe;
}

struct Ingrandimento {
    const char* nome;
    const char* key;  ///< button that is pressed after the whole drawing is shown
    int volte;
};
void PrintTo(const Ingrandimento& caso, std::ostream* uscita) {
    *uscita << caso.nome;
}

class Disegni : public testing::TestWithParam<Ingrandimento> {
  protected:
    /// Keys of the products, in the order of the tree, and what stands above each node.
    QStringList Prodotti() {
        QStringList prodotti;
        for (const QJsonValue& n : p.Fai("tree")["nodes"].toArray()) {
            const QString key = n["key"].toString();
            padri_[key] = n["parent"].toString();
            if (key.startsWith(u"P_") || key.startsWith(u"X_"))
                prodotti << key;
        }
        return prodotti;
    }
    void Apri(const QString& key) {
        const QString padre = padri_.value(key);
        if (!aperti_.contains(key) && !padre.isEmpty() && !aperti_.contains(padre))
            Apri(padre);
        p.Fai("click_node", {{"key", key}});
        aperti_.insert(key);  // a click opens a node
    }
    void Ingrandisci(const Ingrandimento& livello) {
        p.Premi("KEY_ZOOM_ALL");
        for (int i = 0; i < livello.volte; ++i)
            p.Premi(livello.key);
    }
    QJsonObject Tavola() { return p.Fai("canvas"); }

    /// Picks the first part where several stand behind the hotspot; its line knows the bare reference alone.
    bool Scegli_Il_Primo() {
        for (const QJsonValue& finestra : p.Fai("windows")["windows"].toArray())
            if (finestra["name"] == "Form_Seleziona_componente") {
                p.Fai("click_cell",
                      {{"object", "Form_Seleziona_componente/Griglia"}, {"row", 1}, {"col", 1}});
                return true;
            }
        return false;
    }
    bool Nel_Carrello(const QString& oggetto) {
        for (const QJsonValue& prodotto : p.Fai("store")["store"].toArray())
            for (const QJsonValue& riga : prodotto["lines"].toArray())
                if (riga["graphic"] == oggetto)
                    return true;
        return false;
    }
    /// Points at, clicks and double clicks the hotspot; each has to reach it and no other.
    void Raggiungi(const QString& prodotto, const QString& stringa, const Ingrandimento& livello) {
        p.HotSpot(stringa, "enter");
        const QJsonObject sopra = Tavola();
        const QJsonValue documento = sopra["document"];
        EXPECT_EQ(Eventi(sopra).value(Eventi(sopra).size() - 1), "enter " + stringa);
        EXPECT_TRUE(Stringhe(sopra, true).contains(stringa));
        for (const char* evento : {"click", "double_click"}) {
            p.HotSpot(stringa, evento);
            const bool scelta = Scegli_Il_Primo();
            const QJsonObject dopo = Tavola();
            const QStringList clic = Eventi(dopo).filter(u"click "_qs);
            EXPECT_FALSE(clic.isEmpty()) << evento;
            for (const QString& detto : clic)
                EXPECT_EQ(detto.section(u' ', 1).toStdString(), stringa.toStdString());
            if (dopo["document"] == documento) {
                // A click that adds a part leaves nothing for a double click.
                EXPECT_FALSE(clic.contains(u"double_click "_qs + stringa));
                EXPECT_TRUE(Nel_Carrello(scelta ? stringa.section(u"#$#"_qs, -1) : stringa));
                continue;
            }
            ++seguiti;  // a link: its page is up
            Apri(prodotto);
            Ingrandisci(livello);
            Tavola();
        }
        ++raggiunti;
    }

    void Percorri(const QString& prodotto, const Ingrandimento& livello) {
        Apri(prodotto);
        const QJsonObject tavola = Tavola();
        const QStringList stringhe = Stringhe(tavola);
        if (!tavola["visible"].toBool() || stringhe.isEmpty())
            return;
        ++disegni;
        Ingrandisci(livello);
        for (const QString& stringa : stringhe) {
            SCOPED_TRACE(u"%1, hotspot %2"_qs.arg(prodotto, stringa).toStdString());
            EXPECT_NO_THROW(Raggiungi(prodotto, stringa, livello));
        }
    }

    Programma p;
    int disegni = 0, raggiunti = 0, seguiti = 0;

  private:
    QHash<QString, QString> padri_;
    QSet<QString> aperti_;
};

TEST_P(Disegni, ReachesEveryHotspotOfTheSample) {
    p.Fai("filter", {{"mercato", "1"}, {"gruppo", "/CLIENTI/DEALER/SERVICE/"}});
    p.Fai("click", {{"object", "Label_consulta_catalogo"}});
    for (const QString& prodotto : Prodotti())
        Percorri(prodotto, GetParam());
    EXPECT_GE(disegni, 30);
    EXPECT_GE(raggiunti, disegni * 8);
    EXPECT_GE(seguiti, 15 * 2);
}

INSTANTIATE_TEST_SUITE_P(Ingrandimenti, Disegni,
                         testing::Values(Ingrandimento{"fitted", "KEY_ZOOM_PIU", 0},
                                         Ingrandimento{"enlarged", "KEY_ZOOM_PIU", 4},
                                         Ingrandimento{"reduced", "KEY_ZOOM_MENO", 1}),
                         [](const auto& caso) { return std::string(caso.param.nome); });

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication programma(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
