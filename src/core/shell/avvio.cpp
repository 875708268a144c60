#include "core/shell/avvio.h"

#include <QDir>
#include <QFileInfo>

#include "core/base/percorsi.h"
#include "core/base/testo.h"

namespace {

const QString SEZIONE_INSTALLAZIONE = QStringLiteral("INSTALLAZIONE");
const QString SEZIONE_RECENTI = QStringLiteral("SalvataggioTZF");
constexpr int MASSIMO_RECENTI = 100;

bool Ha_Cartella_Dati(const QString& cartella) {
    for (const QString& nome : QDir(cartella).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (nome.compare(u"data", Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

/// Value of the "LN" key of the updates page.
int Lingua_Aggiornamenti(int lingua) {
    switch (lingua) {
        case 1:
            return 1;
        case 4:
            return 4;
        case 5:
        case 6:
            return 5;
        default:
            return 2;
    }
}

}  // namespace

Versione_Programma Versione() {
    return {VIEWER_VERSIONE_MAGGIORE, VIEWER_VERSIONE_MINORE, VIEWER_VERSIONE_REVISIONE};
}

bool Prepara_Riga_Comando(const QString& argomenti, QString& riga_comando) {
    riga_comando = argomenti;
    if (!argomenti.startsWith(u'"'))
        return true;
    if (argomenti.size() < 2)
        return false;
    riga_comando = argomenti.sliced(1, argomenti.size() - 2);
    return true;
}

QString Con_Pacchetto_Assoluto(const QString& riga_comando, const QString& cartella) {
    const QString pacchetto = Estrai_Token(riga_comando, 1, u"|");
    if (pacchetto.isEmpty() || pacchetto == FINE_TOKEN || QDir::isAbsolutePath(pacchetto))
        return riga_comando;
    const qsizetype documento = riga_comando.indexOf(u'|');
    return QDir::cleanPath(QDir(cartella).absoluteFilePath(pacchetto)) +
           (documento < 0 ? QString() : riga_comando.sliced(documento));
}

QString Restituisci_Cartella_Installazione(const QString& cartella_programma, Impostazioni& impostazioni) {
    const QString chiave = QStringLiteral("PATH");
    const QString programma = Cartella_Con_Barra(cartella_programma);
    const QString salvata = impostazioni.Leggi(NOME_APPLICAZIONE, SEZIONE_INSTALLAZIONE, chiave, {});
    if (salvata.trimmed().isEmpty() || (salvata != programma && Ha_Cartella_Dati(programma))) {
        impostazioni.Scrivi(NOME_APPLICAZIONE, SEZIONE_INSTALLAZIONE, chiave, programma);
        return programma;
    }
    return Cartella_Con_Barra(salvata);
}

QString Base_Aggiornamenti(const Impostazioni& impostazioni) {
    return impostazioni
        .Leggi(NOME_APPLICAZIONE, SEZIONE_INSTALLAZIONE, QStringLiteral("AGGIORNAMENTI"), QString())
        .trimmed();
}

QString Indirizzo_Aggiornamenti(const QString& base, int maggiore, int minore, int revisione, int lingua) {
    return QStringLiteral("%1/site/page.wnode?ID_COUNT=hjk222rty456&IDVT1=VIEW%2%3%4&LN=%5")
        .arg(base)
        .arg(maggiore, 2, 10, QChar(u'0'))
        .arg(minore, 4, 10, QChar(u'0'))
        .arg(revisione, 4, 10, QChar(u'0'))
        .arg(Lingua_Aggiornamenti(lingua));
}

QString Cartella_Help(const QString& cartella_installazione) {
    return Cartella_Con_Barra(cartella_installazione) + QStringLiteral("Help") + QDir::separator();
}

QString Percorso_Help(const QString& cartella_help, const QString& chiave_lingua) {
    const QString modello = Cartella_Con_Barra(cartella_help) + QStringLiteral("HELP_Viewer_4_%1.pdf");
    const QString guida = modello.arg(chiave_lingua);
    return QFileInfo(guida).isFile() ? guida : modello.arg(QStringLiteral("UK"));
}

void Aggiungi_Recente(Impostazioni& impostazioni, const QString& percorso) {
    const QString nuovo = Trim(percorso);
    const auto leggi = [&impostazioni](int n) {
        return impostazioni.Leggi(NOME_APPLICAZIONE, SEZIONE_RECENTI, QString::number(n), {});
    };
    const auto scrivi = [&impostazioni](int n, const QString& valore) {
        impostazioni.Scrivi(NOME_APPLICAZIONE, SEZIONE_RECENTI, QString::number(n), valore);
    };
    if (nuovo.isEmpty() || nuovo == leggi(1))
        return;
    int posizione = 2;
    while (posizione < MASSIMO_RECENTI && leggi(posizione) != nuovo)
        ++posizione;
    for (int n = posizione - 1; n >= 1; --n) {
        const QString valore = leggi(n);
        // A hole isn't moved, so what stood behind it stands twice: kept.
        if (!valore.isEmpty() && valore != nuovo)
            scrivi(n + 1, valore);
    }
    scrivi(1, nuovo);
}
