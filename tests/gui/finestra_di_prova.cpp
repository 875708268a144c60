#include "gui/finestra_di_prova.h"

#include <QTimer>

void Affretta_Avvio() {
    for (QWidget* finestra : QApplication::topLevelWidgets())
        if (auto* timer = finestra->findChild<QTimer*>("Timer2"); timer && timer->isActive())
            timer->setInterval(50);
}

Catalogo_Di_Prova Macchina() {
    Catalogo_Di_Prova catalogo;
    catalogo.Nodo("G_A", "R", "Motore")
        .Prodotto("P_1", "G_A", "Carburatore")
        .Prodotto("P_2", "G_A", "Targhette")
        .Nodo("G_B", "R", "Trasmissione")
        .Prodotto("P_3", "G_B", "Cambio")
        .Parte("P_1", "1", "A.001", "Vite")
        .Parte("P_1", "2", "A.002", "Dado")
        .Parte("P_1", "3", "A.003", "Rondella")
        .Parte("P_3", "1", "B.001", "Ingranaggio")
        .Riga("Matricola_Nodo", {{"Key_Prodotto", "P_3"}, {"Matricola", "100"}})
        .Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "R")
        .Sistema("IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI", "SI");
    return catalogo;
}

void Traduci(Catalogo_Di_Prova& catalogo, const char* form, const char* oggetto, const Valore_Prova& testo,
             const Valore_Prova& aiuto) {
    catalogo.Riga("Traduzioni_Viewer_System", {{"Form", form},
                                               {"Name_Object", oggetto},
                                               {"Traduzione_1", testo},
                                               {"Traduzione_Tooltiptext_1", aiuto}});
}

Finestra_Di_Prova::Finestra_Di_Prova()
    : progetto({impostazioni, messaggi, sistema}),
      finestra(std::make_unique<Form_Main>(progetto, cartella.path() + u'/')),
      schermo(finestra->Schermo()) {}

Finestra_Di_Prova::~Finestra_Di_Prova() {
    messaggi.Risposte = {true};  // the cart goes
    finestra->close();
}

void Finestra_Di_Prova::Mostra() {
    schermo.Apertura.Avvia({});
    finestra->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
}

void Finestra_Di_Prova::Apri(const Catalogo_Di_Prova& catalogo) {
    Mostra();
    Apri_Altro(catalogo);
}

void Finestra_Di_Prova::Consulta(const Catalogo_Di_Prova& catalogo, const char* key) {
    Apri(catalogo);
    Clic("Label_consulta_catalogo");
    if (key)
        schermo.Seleziona_Nodo_Albero(key);
}

void Finestra_Di_Prova::Apri_Altro(const Catalogo_Di_Prova& catalogo) {
    schermo.Apertura.Apri_Catalogo(catalogo.Pacchetto(cartella.path()));
    ASSERT_TRUE(progetto.Progetto_Aperto) << messaggi.Testi().join(u'\n').toStdString();
    QApplication::processEvents();
}

QWidget* Finestra_Di_Prova::Trova(const char* nome) const {
    auto* trovato = finestra->findChild<QWidget*>(QLatin1String(nome));
    return trovato ? trovato : throw std::runtime_error(std::string("no widget ") + nome);
}

void Finestra_Di_Prova::Clic(const char* nome) {
    QWidget* oggetto = Trova(nome);
    ASSERT_TRUE(oggetto->isVisible()) << nome;
    QTest::mouseClick(oggetto, Qt::LeftButton);
}

void Finestra_Di_Prova::Clic_Nodo(const char* key) {
    Vista_Albero& albero = finestra->Tree1();
    const QModelIndex indice = albero.Modello().Indice(QLatin1String(key));
    ASSERT_TRUE(indice.isValid()) << key;
    albero.scrollTo(indice);
    QTest::mouseClick(albero.viewport(), Qt::LeftButton, {}, albero.visualRect(indice).center());
}

void Finestra_Di_Prova::Comando(const char* key) {
    QTest::mouseClick(finestra->Toolbar_Main().Bottone(QLatin1String(key)), Qt::LeftButton);
}
