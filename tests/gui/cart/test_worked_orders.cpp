// The worked orders once more, as a user makes them: parts are added in the parts list and on the drawing,
// quantities and notes typed into the cart window, lines removed there; the order screen shows the result.

#include <gmock/gmock.h>

#include <QClipboard>

#include "carrello_alla_finestra.h"
#include "core/base/testo.h"
#include "support/ordini_di_prova.h"

namespace {

using testing::ElementsAreArray;

class Ordini_Alla_Finestra : public Carrello_Alla_Finestra, public testing::WithParamInterface<Variante> {
  protected:
    void Esegui(const Passo_Ordine& passo) {
        if (progetto.Key_Prodotto_Corrente != passo.prodotto) {
            schermo.Seleziona_Nodo_Albero(passo.prodotto);
            QApplication::processEvents();
        }
        if (passo.genere == Passo_Ordine::Aggiungi)
            Aggiungi(passo);
        else if (passo.genere == Passo_Ordine::Oggetto)
            Clicca_Oggetto(passo);
        // A line that isn't there can't be clicked.
        else if (const Class_Elenco* riga =
                     Cerca_Riga(progetto.Prodotti_Selezionati, passo.prodotto, passo.a))
            Cambia(passo, riga->Codice, riga->Riferimento);
    }
    static QString Tag(const Passo_Ordine& passo, const QString& codice, const QString& riferimento) {
        return QString("Add_Componente|%1|%2|%3").arg(codice, passo.prodotto, riferimento);
    }
    /// A click on the cart of the part's row; a part that the list doesn't have comes from elsewhere.
    void Aggiungi(const Passo_Ordine& passo) {
        if (Clic_Tag(finestra->Griglia_Distinta(), Tag(passo, passo.a, passo.b), passo.b, 0))
            ++aggiunti_a_mano;
        else
            schermo.Aggiungi_Al_Carrello(passo.prodotto, passo.a, passo.b);
    }
    void Clicca_Oggetto(const Passo_Ordine& passo) {
        const QString riferimento = Key_Da_Nodo(passo.a);
        const Nel_Dialogo scelta(
            "Form_Seleziona_componente",
            [&](QDialog& dialogo) {
                if (!Clic_Tag(*dialogo.findChild<Vista_Griglia*>("Griglia"), Tag(passo, passo.b, riferimento),
                              riferimento, 0))
                    dialogo.reject();
            },
            true);
        finestra->Tavola().Evento.Click_Su_HotSpot(passo.a, passo.a);
    }
    /// Removes a line, or puts a text into one of its cells, all at once.
    void Cambia(const Passo_Ordine& passo, const QString& codice, const QString& riferimento) {
        const bool nota = passo.genere == Passo_Ordine::Nota;
        const char* genere = passo.genere == Passo_Ordine::Togli ? "Elimina|" : nota ? "Note|" : "Qta|";
        ASSERT_TRUE(Clic_Tag(Griglia(), genere + codice, riferimento, 1)) << passo.a.toStdString();
        if (passo.genere == Passo_Ordine::Togli)
            return;
        QLineEdit& testo = Text(nota ? "Text_Note" : "Text_Qta");
        ASSERT_TRUE(testo.isVisible() && testo.hasFocus());
        QApplication::clipboard()->setText(passo.b);
        if (passo.b.isEmpty())
            QTest::keyClick(&testo, Qt::Key_Delete);
        else
            QTest::keySequence(&testo, QKeySequence::Paste);
        QTest::keyClick(&testo, Qt::Key_Return);
        EXPECT_FALSE(testo.isVisible());
    }
    int aggiunti_a_mano = 0;
};

TEST_P(Ordini_Alla_Finestra, ComeOutAsWorkedByHand) {
    impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_CARRELLO", "WIDTH", "15000");
    impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_CARRELLO", "HEIGHT", "9000");
    Apri(Catalogo_Ordini(GetParam()).Sistema("IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI", "SI"));
    Clic("Label_consulta_catalogo");
    schermo.Seleziona_Nodo_Albero("P_1");
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
        EXPECT_THAT(Righe_Ordine(Griglia_Evadi().Dati(), Griglia_Evadi().Tag()),
                    ElementsAreArray(QStringList(ordine.righe).replaceInStrings(".", ",")));
        EXPECT_EQ(Griglia_Evadi().isVisible(), !ordine.righe.isEmpty());
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
