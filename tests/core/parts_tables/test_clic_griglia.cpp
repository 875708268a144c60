#include <gmock/gmock.h>

#include <QTemporaryFile>

#include "core/parts_tables/clic_griglia.h"
#include "support/fakes.h"

namespace {

using Genere = Azione_Cella::Genere;
using testing::ElementsAre;

class Clic : public testing::Test {
  protected:
    Clic() {
        griglia.Cols(5);
        griglia.AddItem({"2"});
        tag.Imposta(1, 1, "Add_Componente|C 1|P_1|-");
        tag.Imposta(1, 2, "Image|foto.png");
        tag.Imposta(1, 3, "Document|guida.pdf|resto");
        tag.Imposta(2, 3, "GO_Prodotto|C 2|P_1|4");
        tag.Imposta(2, 4, "Qta|");
    }
    Griglia griglia;
    Tag_Griglia tag{10};
};

TEST_F(Clic, TheTagSaysWhatAClickDoes) {
    tag.Imposta(3, 1, "Add_Componente||P_2|");
    // Row, column, kind, entry; code, product and reference.
    const std::tuple<int, int, Genere, const char*, const char*> casi[] = {
        {1, 1, Genere::Add_Componente, "", "C 1|P_1|-"},
        {1, 2, Genere::Image, "foto.png", "||"},
        {1, 3, Genere::Document, "guida.pdf", "||"},
        {1, 4, Genere::Evidenzia, "", "C 1|P_1|-"},
        {1, 0, Genere::Nessuna, "", "||"},            // the reference
        {0, 1, Genere::Nessuna, "", "||"},            // the header
        {1, 26, Genere::Nessuna, "", "||"},           // beyond the tags
        {2, 3, Genere::Nessuna, "", "||"},            // a kind of other grids
        {3, 1, Genere::Add_Componente, "", "|P_2|"},  // fields that the tag lacks
        {4, 1, Genere::Nessuna, "", "||"},            // a row that adds nothing
    };
    for (const auto& [riga, colonna, genere, voce, componente] : casi) {
        const Azione_Cella a = Clic_Griglia(tag, riga, colonna);
        EXPECT_EQ(a.Tipo, genere) << riga << ',' << colonna;
        EXPECT_EQ(a.Voce, voce) << riga << ',' << colonna;
        EXPECT_EQ(a.Codice + '|' + a.Prodotto + '|' + a.Riferimento, componente) << riga << ',' << colonna;
    }
}

TEST_F(Clic, ThePointerTellsLiveCells) {
    using enum Puntatore;
    const std::tuple<int, int, Puntatore> casi[] = {{1, 1, Mano},    {1, 4, Freccia}, {0, 1, Freccia},
                                                    {2, 3, Mano},    {2, 4, Testo},   {1, 26, Freccia},
                                                    {3, 1, Nessuno}, {1, -1, Freccia}};
    for (const auto& [riga, colonna, atteso] : casi)
        EXPECT_EQ(Puntatore_Griglia(griglia, tag, riga, colonna), atteso) << riga << ',' << colonna;
}

class File_Di_Prova : public Fonte_File {
  public:
    QString Scompatta_File_Compattato(const QString& nome) override {
        return nome == "guasto" ? throw std::runtime_error("guasto") : Percorsi.value(nome);
    }
    QHash<QString, QString> Percorsi;
};

TEST_F(Clic, IsCarriedOut) {
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    const Class_DBOper db(messaggi);
    const Collection_Traduzioni traduzioni(messaggi);
    const Numeri numeri(sistema, messaggi);
    File_Di_Prova file;
    const Contesto_Griglia contesto{db, traduzioni, numeri, file, sistema, {}, {}, {}};
    QTemporaryFile su_disco;
    ASSERT_TRUE(su_disco.open());
    file.Percorsi = {{"presente.png", su_disco.fileName()}, {"sparito.pdf", "/non/c'è.pdf"}};
    QStringList fatto;
    Esecutore_Cella esecutore{.Mostra_Immagine = [&](const QString& percorso) { fatto += percorso; }};
    esecutore.Aggiungi = [&](const Azione_Cella& a) { fatto += "+" + a.Codice; };
    esecutore.Modifica = [&](const Azione_Cella& a) { fatto += "=" + a.Codice; };
    // Whether a document's file is there is left to the desktop.
    for (const char* testo : {"Image|presente.png", "Image|sparito.pdf", "Image|assente", "Image|guasto",
                              "Document|sparito.pdf", "Document|assente", "Document|guasto",
                              "Add_Componente|A", "Qta|B", "Note|C", "Elimina|D", "GO_Prodotto|E"}) {
        tag.Imposta(1, 1, testo);
        Esegui_Azione(Clic_Griglia(tag, 1, 1), contesto, esecutore);
    }
    EXPECT_THAT(fatto, ElementsAre(su_disco.fileName(), "+A", "=B", "=C"));
    EXPECT_THAT(sistema.Aperti, ElementsAre("/non/c'è.pdf"));
}

}  // namespace
