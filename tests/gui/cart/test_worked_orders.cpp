// The worked orders once more, as a user makes them: parts are added in the parts list and on the drawing,
// quantities and notes typed into the cart window, lines removed there; the order screen shows the result.

#include <gmock/gmock.h>

#include <QClipboard>
#include <QLineEdit>

#include "core/base/testo.h"
#include "gui/finestra_di_prova.h"
#include "gui/nel_dialogo.h"
#include "support/ordini_di_prova.h"

namespace {

using testing::ElementsAreArray;

class Ordini_Alla_Finestra : public Finestra_Di_Prova, public testing::WithParamInterface<Variante> {
  protected:
    /// The cell of a grid whose tag begins so; row 0 for none.
    static std::pair<int, int> Cella(const Vista_Griglia& griglia, const QString& tag,
                                     const QString& riferimento, int colonna_riferimento) {
        for (int r = 1; r < griglia.Dati().Rows(); ++r)
            for (int c = 0; c < griglia.Dati().Cols(); ++c)
                if (griglia.Tag().At(r, c) == tag &&
                    griglia.Dati().TextMatrix(r, colonna_riferimento) == riferimento)
                    return {r, c};
        return {0, 0};
    }
    void Vai_A(const QString& prodotto) {
        if (progetto.Key_Prodotto_Corrente == prodotto)
            return;
        schermo.Seleziona_Nodo_Albero(prodotto);
        QApplication::processEvents();
    }
    /// A click on the cart of the part's row; a part that the list doesn't have comes from elsewhere.
    void Aggiungi(const Passo_Ordine& passo) {
        Vai_A(passo.prodotto);
        const QString tag = QString("Add_Componente|%1|%2|%3").arg(passo.a, passo.prodotto, passo.b);
        Vista_Griglia& distinta = finestra->Griglia_Distinta();
        const auto [r, c] = Cella(distinta, tag, passo.b, 0);
        if (r > 0) {
            Clic_Cella(distinta, r, c);
            ++aggiunti_a_mano;
        } else {
            schermo.Ordine.Carrello().Aggiungi_Componente_Carrello_Evidenzia_Tavola(passo.prodotto, passo.a,
                                                                                    passo.b);
        }
    }
    void Clicca_Oggetto(const Passo_Ordine& passo) {
        Vai_A(passo.prodotto);
        const Nel_Dialogo scelta(
            "Form_Seleziona_componente",
            [&](QDialog& dialogo) {
                auto& griglia = *dialogo.findChild<Vista_Griglia*>("Griglia");
                const QString tag =
                    QString("Add_Componente|%1|%2|%3").arg(passo.b, passo.prodotto, Key_Da_Nodo(passo.a));
                if (const auto [r, c] = Cella(griglia, tag, Key_Da_Nodo(passo.a), 0); r > 0)
                    Clic_Cella(griglia, r, c);
                else
                    dialogo.reject();
            },
            true);
        finestra->Tavola().Evento.Click_Su_HotSpot(passo.a, passo.a);
    }
    /// Puts a text into a cell of the line in the cart window, all at once.
    void Scrivi(const Passo_Ordine& passo, const char* genere, const char* casella) {
        Vai_A(passo.prodotto);
        const Class_Elenco* riga = Cerca_Riga(progetto.Prodotti_Selezionati, passo.prodotto, passo.a);
        if (!riga)
            return;  // a line that isn't there can't be clicked
        const auto [r, c] = Cella(Griglia(), QString(genere) + '|' + riga->Codice, riga->Riferimento, 1);
        ASSERT_GT(r, 0) << passo.a.toStdString();
        Clic_Cella(Griglia(), r, c);
        auto& testo = *Carrello().findChild<QLineEdit*>(casella);
        ASSERT_TRUE(testo.isVisible() && testo.hasFocus());
        QApplication::clipboard()->setText(passo.b);
        if (passo.b.isEmpty())
            QTest::keyClick(&testo, Qt::Key_Delete);
        else
            QTest::keySequence(&testo, QKeySequence::Paste);
        QTest::keyClick(&testo, Qt::Key_Return);
        EXPECT_FALSE(testo.isVisible());
    }
    void Togli(const Passo_Ordine& passo) {
        Vai_A(passo.prodotto);
        const Class_Elenco* riga = Cerca_Riga(progetto.Prodotti_Selezionati, passo.prodotto, passo.a);
        if (!riga)
            return;
        const auto [r, c] = Cella(Griglia(), "Elimina|" + riga->Codice, riga->Riferimento, 1);
        ASSERT_GT(r, 0) << passo.a.toStdString();
        Clic_Cella(Griglia(), r, c);
    }
    void Esegui(const Passo_Ordine& passo) {
        switch (passo.genere) {
            case Passo_Ordine::Aggiungi:
                return Aggiungi(passo);
            case Passo_Ordine::Oggetto:
                return Clicca_Oggetto(passo);
            case Passo_Ordine::Quantita:
                return Scrivi(passo, "Qta", "Text_Qta");
            case Passo_Ordine::Nota:
                return Scrivi(passo, "Note", "Text_Note");
            case Passo_Ordine::Togli:
                return Togli(passo);
        }
    }
    /// The order on the screen, in the form of the table.
    QStringList Ordine() {
        const Vista_Griglia& griglia = Griglia_Evadi();
        if (!griglia.isVisible())
            return {};
        const auto& colonne = schermo.Ordine.Carrello().Ordine().Colonne;
        const auto note = std::find_if(colonne.begin(), colonne.end(), [](const Colonna_Griglia& colonna) {
            return colonna.Genere == Genere_Colonna::Note;
        });
        QStringList righe;
        for (int r = 0; r < griglia.model()->rowCount(); ++r) {
            QStringList celle, tag;
            for (int c = 0; c < griglia.model()->columnCount(); ++c) {
                celle += griglia.model()->index(r, c).data().toString();
                tag += griglia.Tag().At(r + 1, c);
            }
            righe += Riga_Ordine(celle, tag, static_cast<int>(note - colonne.begin()));
        }
        return righe;
    }
    int aggiunti_a_mano = 0;
};

TEST_P(Ordini_Alla_Finestra, ComeOutAsWorkedByHand) {
    impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_CARRELLO", "WIDTH", "15000");
    impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_CARRELLO", "HEIGHT", "9000");
    Apri(Catalogo_Ordini(GetParam()).Sistema("IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI", "SI"));
    Clic("Label_consulta_catalogo");
    Vai_A("P_1");
    Comando("KEY_CARELLO_PARZIALE");
    int fatti = 0;
    for (const Ordine_Di_Prova& ordine : Ordini_Di_Prova()) {
        if (ordine.variante != GetParam())
            continue;
        SCOPED_TRACE(ordine.nome);
        messaggi.Mostrati.clear();
        while (progetto.Prodotti_Selezionati.Count() > 0)
            progetto.Prodotti_Selezionati.Remove(1);
        progetto.Utente = ordine.login;
        for (const Passo_Ordine& passo : ordine.passi)
            Esegui(passo);
        Comando("KEY_EVADI_ORDINE");
        // This desktop's decimal separator is the comma.
        EXPECT_EQ(Ordine().join(u'\n').toStdString(),
                  QStringList(ordine.righe).replaceInStrings(".", ",").join(u'\n').toStdString());
        EXPECT_THAT(messaggi.Testi(), ElementsAreArray(ordine.messaggi));
        Comando("KEY_EVADI_ORDINE");
        ++fatti;
    }
    EXPECT_GT(fatti, 0);
    EXPECT_GE(aggiunti_a_mano, fatti * 9 / 10) << "few parts were added in the parts list";
}

INSTANTIATE_TEST_SUITE_P(Varianti, Ordini_Alla_Finestra,
                         testing::Values(Variante::Libera, Variante::Obbligata, Variante::Sconto_Base,
                                         Variante::Due_Prezzi, Variante::Senza_Prezzi));

}  // namespace
