#include <gmock/gmock.h>

#include <QTemporaryFile>

#include "core/parts_tables/clic_griglia.h"
#include "support/fakes.h"

namespace {

class File_Di_Prova : public Fonte_File {
  public:
    QString Scompatta_File_Compattato(const QString& nome) override {
        return nome == "guasto" ? throw std::runtime_error("guasto") : Percorsi.value(nome);
    }
    QHash<QString, QString> Percorsi;
};

TEST(Clic_Griglia, TheTagSaysWhatAClickDoes) {
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    const Class_DBOper db(messaggi);
    const Collection_Traduzioni traduzioni(messaggi);
    const Numeri numeri(sistema, messaggi);
    File_Di_Prova file;
    QTemporaryFile su_disco;
    ASSERT_TRUE(su_disco.open());
    file.Percorsi = {{"c'è.png", su_disco.fileName()}, {"sparito.pdf", "/non/c'è.pdf"}};
    const Contesto_Griglia contesto{db, traduzioni, numeri, file, sistema, {}, {}, {}};
    QString fatto;
    const auto segna = [&](const QString& lavoro) {
        return [&fatto, lavoro](const Azione_Cella& a) {
            fatto += lavoro + QStringList{a.Codice, a.Prodotto, a.Riferimento}.join('/');
        };
    };
    const Esecutore_Cella esecutore{.Mostra_Immagine = [&](const QString& percorso) { fatto += percorso; },
                                    .Evidenzia = segna("light "),
                                    .Aggiungi = segna("add "),
                                    .Modifica = segna("edit ")};
    Griglia griglia;
    Tag_Griglia tag(10);
    using enum Puntatore;
    // The tag of a cell in a row that adds a component; pointer, what is done, what is opened.
    const std::tuple<const char*, Puntatore, QString, QString> casi[] = {
        {"Add_Componente|C 1|P_1|-", Mano, "add C 1/P_1/-", ""},
        {"Add_Componente||P_2|", Mano, "add /P_2/", ""},
        {"", Freccia, "light C 1/P_1/4", ""},
        {"Image|c'è.png", Mano, su_disco.fileName(), ""},
        {"Image|sparito.pdf", Mano, "", ""},
        {"Image|guasto", Mano, "", ""},
        {"Document|sparito.pdf|resto", Mano, "", "/non/c'è.pdf"},  // the desktop sees whether it is there
        {"Document|assente", Mano, "", ""},
        {"Qta|B", Testo, "edit B//", ""},
        {"Note|C", Testo, "edit C//", ""},
        {"Elimina|D", Mano, "", ""},  // this grid doesn't
        {"GO_Prodotto|E", Mano, "", ""}};
    const auto clicca = [&](int riga, int colonna) {
        fatto.clear();
        sistema.Aperti.clear();
        Esegui_Azione(Clic_Griglia(tag, riga, colonna), contesto, esecutore);
        return fatto;
    };
    tag.Imposta(1, 2, "Add_Componente|C 1|P_1|4");
    for (const auto& [testo, puntatore, lavoro, aperto] : casi) {
        tag.Imposta(1, 1, testo);
        EXPECT_EQ(clicca(1, 1), lavoro) << testo;
        EXPECT_EQ(sistema.Aperti.join(""), aperto) << testo;
        EXPECT_EQ(Puntatore_Griglia(griglia, tag, 1, 1), puntatore) << testo;
    }
    // The reference, the header, beyond the tags, beside the columns, a row that adds nothing.
    for (const auto& [riga, colonna, puntatore] :
         {std::tuple(1, 0, Freccia), {0, 1, Freccia}, {1, 26, Freccia}, {1, -1, Freccia}, {2, 1, Nessuno}}) {
        EXPECT_EQ(clicca(riga, colonna), "") << riga << ',' << colonna;
        EXPECT_EQ(Puntatore_Griglia(griglia, tag, riga, colonna), puntatore) << riga << ',' << colonna;
    }
}

}  // namespace
