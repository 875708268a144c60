// The contract of the canvas, run on the table-only fake and on the widget.

#include "disegni.h"
#include "support/lavagna_finta.h"

namespace {

/// The same drawing for both: "b1" and "part" bear "CODICI#$#A1", a third hotspot has no name but its string
/// "2".
struct Finta {
    Finta() { lavagna.documenti["tavola"] = {{"b1", "CODICI#$#A1"}, {"2", "2"}, {"part", "CODICI#$#A1"}}; }
    QString Tavola() { return "tavola"; }
    Lavagna_Finta lavagna;
};
struct Vera {
    QString Tavola() { return disegni.Palloni(); }
    Disegni disegni;
    Lavagna_Widget lavagna;
};

template <class Caso>
class Contratto : public testing::Test {
  protected:
    void Carica() { lavagna.Carica_Layout(caso.Tavola(), 0); }
    Caso caso;
    Lavagna& lavagna = caso.lavagna;
};
using Casi = testing::Types<Finta, Vera>;
TYPED_TEST_SUITE(Contratto, Casi);

TYPED_TEST(Contratto, AHotspotIsInTheMarkedStateOnlyAfterMarking) {
    this->Carica();
    for (const char* nome : {"CODICI#$#A1", "2"}) {
        EXPECT_EQ(this->lavagna.Stato_HotSpot(nome), 1);
        this->lavagna.Colora_HotSpot(nome, VERDE);
        EXPECT_EQ(this->lavagna.Stato_HotSpot(nome), 1) << "a colour alone is no mark";
        this->lavagna.Segna_HotSpot(nome);
        this->lavagna.Colora_HotSpot(nome, BLU);
        EXPECT_EQ(this->lavagna.Stato_HotSpot(nome), 0);
        this->lavagna.Evidenzia_HotSpot(nome, VERDE);
        this->lavagna.Azzera_Evidenziazione("");
        this->lavagna.Decolora_HotSpot(nome);
        EXPECT_EQ(this->lavagna.Stato_HotSpot(nome), 0) << "taking the colour off leaves the mark";
        this->lavagna.Togli_Segno_HotSpot(nome);
        EXPECT_EQ(this->lavagna.Stato_HotSpot(nome), 1);
    }
}

TYPED_TEST(Contratto, NamesAndStringsMeanTheSameHotspot) {
    this->Carica();
    this->lavagna.Segna_HotSpot("part");
    EXPECT_EQ(this->lavagna.Stato_HotSpot("CODICI#$#A1"), 0);
    EXPECT_EQ(this->lavagna.Stato_HotSpot("b1"), 0);
    EXPECT_EQ(this->lavagna.Stato_HotSpot("2"), 1);
}

TYPED_TEST(Contratto, UnknownNamesDoNothing) {
    this->Carica();
    for (const char* nome : {"", "A1", "codici#$#a1", "CODICI#$#A1 "}) {
        this->lavagna.Segna_HotSpot(nome);
        this->lavagna.Colora_HotSpot(nome, BLU);
        this->lavagna.Evidenzia_HotSpot(nome, BLU);
        this->lavagna.Azzera_Evidenziazione(nome);
        this->lavagna.Decolora_HotSpot(nome);
        EXPECT_NE(this->lavagna.Stato_HotSpot(nome), 0);
        this->lavagna.Togli_Segno_HotSpot(nome);
    }
    EXPECT_EQ(this->lavagna.Stato_HotSpot("CODICI#$#A1"), 1);
}

TYPED_TEST(Contratto, AnEmptyCanvasTakesEveryCall) {
    for (const bool caricata : {false, true}) {
        if (caricata)
            this->lavagna.Carica_Layout("/no/such/file", 0);
        this->lavagna.Segna_HotSpot("2");
        this->lavagna.Colora_HotSpot("2", BLU);
        EXPECT_NE(this->lavagna.Stato_HotSpot("2"), 0);
        this->lavagna.Azzera_Evidenziazione("");
        for (const char* comando :
             {"SELEZIONA", "ZOOM_WINDOWS", "ZOOM_PAGINA", "ZOOM_PIU", "ZOOM_MENO", "UNKNOWN", ""})
            this->lavagna.Esegui(comando, 1);
        this->lavagna.Ferma_Azione();
        this->lavagna.Svuota();
        this->lavagna.Ridisegna(true);
    }
    this->lavagna.Chiudi();
}

TYPED_TEST(Contratto, OptionsAreKeptAndUnsetOnesAreEmpty) {
    EXPECT_FALSE(this->lavagna.Leggi_Opzione("LAMPEGGIA").isValid());
    this->lavagna.Imposta_Opzione("LAMPEGGIA", "NO");
    this->lavagna.Imposta_Opzione("LAVAGNA_FISSA", true);
    this->lavagna.Imposta_Opzione("ANYTHING", 7);
    this->Carica();
    EXPECT_EQ(this->lavagna.Leggi_Opzione("LAMPEGGIA"), QVariant("NO"));
    EXPECT_EQ(this->lavagna.Leggi_Opzione("LAVAGNA_FISSA"), QVariant(true));
    EXPECT_EQ(this->lavagna.Leggi_Opzione("ANYTHING"), QVariant(7));
}

TYPED_TEST(Contratto, SelectionColoursBelongToTheDocument) {
    this->Carica();
    EXPECT_FALSE(this->lavagna.Leggi_Opzione("PICKBACKCOLOR").isValid());
    this->lavagna.Imposta_Opzione("PICKBORDERCOLOR", 0xff0000u);
    EXPECT_EQ(this->lavagna.Leggi_Opzione("PICKBORDERCOLOR").toUInt(), 0xff0000u);
    this->Carica();
    EXPECT_FALSE(this->lavagna.Leggi_Opzione("PICKBORDERCOLOR").isValid());
}

TYPED_TEST(Contratto, ANewPageKeepsNothingOfTheOld) {
    this->Carica();
    this->lavagna.Segna_HotSpot("2");
    this->Carica();
    EXPECT_EQ(this->lavagna.Stato_HotSpot("2"), 1);
    this->lavagna.Segna_HotSpot("2");
    this->lavagna.Svuota();
    EXPECT_EQ(this->lavagna.Stato_HotSpot("2"), 1);
}

TYPED_TEST(Contratto, TellsOncePerPageThatItIsThere) {
    int pronte = 0;
    this->lavagna.Evento.Tavola_Pronta = [&] { ++pronte; };
    this->Carica();
    EXPECT_EQ(pronte, 1);
    this->lavagna.Carica_Layout("/no/such/file", 0);
    this->lavagna.Carica_Layout("", 0);
    EXPECT_EQ(pronte, 1);
    this->Carica();
    EXPECT_EQ(pronte, 2);
}

}  // namespace
