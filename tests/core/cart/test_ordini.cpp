#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "core/cart/griglia_carrello.h"
#include "core/package/class_progetto_aperto.h"
#include "support/fakes.h"
#include "support/ordini_di_prova.h"

namespace {

using testing::ElementsAreArray;

/// A catalogue of the worked orders, packed and opened as the viewer does.
struct Catalogo_Aperto_Intero {
    explicit Catalogo_Aperto_Intero(Variante variante, QChar separatore)
        : pacchetto(Catalogo_Ordini(variante).Pacchetto(cartella.path())),
          progetto({impostazioni, messaggi, sistema}) {
        sistema.Separatore = separatore;
        if (progetto.Apri_Progetto_TZF(pacchetto) != 1)
            throw std::runtime_error(messaggi.Testi().join(u' ').toStdString());
        progetto.Traduzioni.Carica_Testi_Codificati(progetto.Lingua);
    }

    QTemporaryDir cartella;
    Impostazioni_Finte impostazioni;
    Messaggi_Finti messaggi;
    Sistema_Finto sistema;
    QString pacchetto;
    Class_Progetto_Aperto progetto;
};

class Ordini : public testing::Test {
  protected:
    QStringList Esegui(const Ordine_Di_Prova& ordine, Catalogo_Aperto_Intero& aperto) {
        Class_Progetto_Aperto& p = aperto.progetto;
        aperto.messaggi.Mostrati.clear();
        while (p.Prodotti_Selezionati.Count() > 0)
            p.Prodotti_Selezionati.Remove(1);
        p.Utente = ordine.login;
        const Aggiunta_Carrello carrello{p.DB, p.Numeri_, p.Filtri_Correnti(), p.Prodotti_Selezionati};
        for (const Passo_Ordine& passo : ordine.passi)
            passo.Esegui(carrello, aperto.messaggi);
        const auto colonne = Visualizza_Griglia_Carello_Prodotto(p.Carrello([] { return true; }, [] {}),
                                                                 TUTTI_I_PRODOTTI, true, griglia, tag);
        const auto note = std::find_if(colonne.begin(), colonne.end(), [](const Colonna_Griglia& colonna) {
            return colonna.Tipo == u"Note";
        });
        return Righe_Ordine(griglia, tag, static_cast<int>(note - colonne.begin()));
    }

    Griglia griglia;
    Tag_Griglia tag{1000};
};

TEST_F(Ordini, ComeOutAsWorkedByHandUnderEitherSeparator) {
    std::map<std::pair<Variante, QChar>, std::unique_ptr<Catalogo_Aperto_Intero>> aperti;
    const auto ordini = Ordini_Di_Prova();
    EXPECT_GE(ordini.size(), 40u);
    for (const QChar separatore : {u'.', u','})
        for (const Ordine_Di_Prova& ordine : ordini) {
            SCOPED_TRACE(ordine.nome + std::string(" ") + QString(separatore).toStdString());
            auto& aperto = aperti[{ordine.variante, separatore}];
            if (!aperto)
                aperto = std::make_unique<Catalogo_Aperto_Intero>(ordine.variante, separatore);
            QStringList attese = ordine.righe;
            if (separatore == u',')
                for (QString& riga : attese)
                    riga.replace(u'.', u',');
            EXPECT_THAT(Esegui(ordine, *aperto), ElementsAreArray(attese));
            EXPECT_THAT(aperto->messaggi.Testi(), ElementsAreArray(ordine.messaggi));
            EXPECT_EQ(griglia.Visible, !attese.isEmpty());
        }
}

}  // namespace
