// The contract of the canvas, run on the table-only fake and on the widget.

#include "disegni.h"
#include "support/lavagna_finta.h"

namespace {

/// The same drawing for both: "b1" and "part" bear "CODICI#$#A1", a third hotspot has no name but its string
/// "2".
struct Finta {
    Finta() { lavagna.documenti["tavola"] = {{"b1", "CODICI#$#A1"}, {"2", "2"}, {"part", "CODICI#$#A1"}}; }
    bool Colorato(const QString& nome) { return lavagna.Trova(nome)->colore.has_value(); }
    Lavagna_Finta lavagna;
    const QString tavola = "tavola";
};
struct Vera {
    bool Colorato(const QString& nome) {
        const auto hotspot = lavagna.Introspezione().hotspot;
        return std::any_of(hotspot.begin(), hotspot.end(),
                           [&](const auto& h) { return h.stringa == nome && h.colore; });
    }
    Lavagna_Widget lavagna;
    Disegni disegni;
    const QString tavola = disegni.Palloni();
};

template <class Caso>
class Contratto : public testing::Test {
  protected:
    /// The canvas with the drawing anew.
    Lavagna& Caricata() {
        tela.Carica_Layout(caso.tavola, 0);
        return tela;
    }
    Caso caso;
    Lavagna& tela = caso.lavagna;
};
using Casi = testing::Types<Finta, Vera>;
TYPED_TEST_SUITE(Contratto, Casi);

TYPED_TEST(Contratto, AHotspotIsInTheMarkedStateOnlyAfterMarking) {
    Lavagna& lavagna = this->Caricata();
    for (const char* nome : {"CODICI#$#A1", "2"}) {
        EXPECT_EQ(lavagna.Stato_HotSpot(nome), 1);
        lavagna.Colora_HotSpot(nome, VERDE);
        EXPECT_EQ(lavagna.Stato_HotSpot(nome), 1) << "a colour alone is no mark";
        lavagna.Segna_HotSpot(nome);
        lavagna.Colora_HotSpot(nome, BLU);
        EXPECT_EQ(lavagna.Stato_HotSpot(nome), 0);
        lavagna.Evidenzia_HotSpot(nome, VERDE);
        lavagna.Azzera_Evidenziazione("");
        lavagna.Decolora_HotSpot(nome);
        EXPECT_EQ(lavagna.Stato_HotSpot(nome), 0) << "taking the colour off leaves the mark";
        lavagna.Togli_Segno_HotSpot(nome);
        EXPECT_EQ(lavagna.Stato_HotSpot(nome), 1);
    }
    lavagna.Segna_HotSpot("part");
    EXPECT_EQ(lavagna.Stato_HotSpot("b1"), 0) << "another name of the same hotspot";
    EXPECT_EQ(lavagna.Stato_HotSpot("2"), 1);
    EXPECT_EQ(this->Caricata().Stato_HotSpot("b1"), 1) << "a new page keeps nothing of the old";
}

TYPED_TEST(Contratto, AColourLastsOnlyOnWhatIsMarked) {
    Lavagna& lavagna = this->Caricata();
    lavagna.Segna_HotSpot("2");
    for (const char* nome : {"2", "CODICI#$#A1"})
        lavagna.Colora_HotSpot(nome, VERDE);
    lavagna.Azzera_Evidenziazione("");
    EXPECT_TRUE(this->caso.Colorato("2"));
    EXPECT_FALSE(this->caso.Colorato("CODICI#$#A1"));
}

TYPED_TEST(Contratto, UnknownNamesAndEmptyCanvasesTakeEveryCall) {
    Lavagna& lavagna = this->tela;
    for (const QString& tavola : {QString(), QString("/no/such/file"), this->caso.tavola}) {
        if (!tavola.isNull())
            lavagna.Carica_Layout(tavola, 0);
        for (const char* nome : {"", "A1", "codici#$#a1", "CODICI#$#A1 "}) {
            lavagna.Segna_HotSpot(nome);
            lavagna.Evidenzia_HotSpot(nome, BLU);
            lavagna.Decolora_HotSpot(nome);
            EXPECT_NE(lavagna.Stato_HotSpot(nome), 0) << qPrintable(tavola);
            lavagna.Togli_Segno_HotSpot(nome);
        }
        EXPECT_NE(lavagna.Stato_HotSpot("CODICI#$#A1"), 0) << qPrintable(tavola);
        for (const char* comando : {"ZOOM_WINDOWS", "ZOOM_PAGINA", "ZOOM_MENO", "UNKNOWN"})
            lavagna.Esegui(comando, 1);
        lavagna.Ferma_Azione();
        lavagna.Svuota();
    }
    lavagna.Chiudi();
}

TYPED_TEST(Contratto, OptionsAreKeptButSelectionColoursBelongToTheDocument) {
    this->tela.Imposta_Opzione("LAMPEGGIA", "NO");
    Lavagna& lavagna = this->Caricata();
    EXPECT_EQ(lavagna.Leggi_Opzione("LAMPEGGIA"), QVariant("NO"));
    lavagna.Imposta_Opzione("PICKBORDERCOLOR", 0xff0000u);
    EXPECT_EQ(lavagna.Leggi_Opzione("PICKBORDERCOLOR").toUInt(), 0xff0000u);
    EXPECT_FALSE(this->Caricata().Leggi_Opzione("PICKBORDERCOLOR").isValid());
}

TYPED_TEST(Contratto, TellsOncePerPageThatItIsThere) {
    int pronte = 0;
    this->tela.Evento.Tavola_Pronta = [&] { ++pronte; };
    for (const int attese : {1, 2}) {
        this->Caricata();
        this->tela.Carica_Layout("/no/such/file", 0);
        EXPECT_EQ(pronte, attese);
    }
}

}  // namespace
