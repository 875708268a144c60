#include <gmock/gmock.h>

#include <map>

#include "carrello_aperto.h"

namespace {

using testing::ElementsAreArray;

TEST(Ordini, ComeOutAsWorkedByHandUnderEitherSeparator) {
    std::map<std::pair<Variante, QChar>, std::unique_ptr<Carrello_Aperto>> aperti;
    const auto ordini = Ordini_Di_Prova();
    EXPECT_GE(ordini.size(), 40u);
    for (const QChar separatore : {u'.', u','})
        for (const Ordine_Di_Prova& ordine : ordini) {
            SCOPED_TRACE(ordine.nome + std::string(" ") + QString(separatore).toStdString());
            auto& c = aperti[{ordine.variante, separatore}];
            if (!c)
                c = std::make_unique<Carrello_Aperto>(Catalogo_Ordini(ordine.variante), separatore);
            c->messaggi.Mostrati.clear();
            while (c->progetto.Prodotti_Selezionati.Count() > 0)
                c->progetto.Prodotti_Selezionati.Remove(1);
            c->progetto.Utente = ordine.login;
            for (const Passo_Ordine& passo : ordine.passi)
                passo.Esegui(c->Aggiunta(), c->messaggi);
            c->Riempi();
            QStringList attese = ordine.righe;
            if (separatore == u',')
                attese.replaceInStrings(".", ",");
            EXPECT_THAT(Righe_Ordine(c->griglia, c->tag), ElementsAreArray(attese));
            EXPECT_THAT(c->messaggi.Testi(), ElementsAreArray(ordine.messaggi));
            EXPECT_EQ(c->griglia.Visible, !attese.isEmpty());
        }
}

}  // namespace
