#include "core/package/estrazione.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "core/base/percorsi.h"

namespace {

/// The entry's path below a folder; "" when it would lead out of it.
QString Sotto(const QString& cartella, const QString& voce) {
    for (const QString& parte : voce.split(u'/'))
        if (parte.isEmpty() || parte != Nome_Sicuro(parte))
            return {};
    return cartella + voce;
}

/// The file that lies beside the package under the entry's name and stands in for it; "" for none.
QString File_Accanto(const QString& pacchetto, const QString& voce) {
    const QString percorso = Sotto(Cartella_Con_Barra(QFileInfo(pacchetto).absolutePath()), voce);
    return !percorso.isEmpty() && QFileInfo(percorso).isFile() ? percorso : QString();
}

/// The entry as it was extracted to that folder before; "" for none. The folder may be the system's temporary
/// one, where anybody can put a file or a link: only a file of our own counts.
QString Gia_Estratto(const QString& cartella, const QString& voce) {
    const QString percorso = cartella.isEmpty() ? QString() : Sotto(cartella, voce);
    const QFileInfo info(percorso);
    const bool nostro = info.isFile() && !info.isSymLink() && info.ownerId() == ::geteuid();
    return !percorso.isEmpty() && nostro ? percorso : QString();
}

}  // namespace

QString Estrattore::Estrai_Da_Pacchetto(const QString& pacchetto, const QString& nome,
                                        const QString& cartella, Avanzamento* avanzamento,
                                        Stato_Archivio* stato) {
    const Archivio archivio(pacchetto);
    const qsizetype voce = archivio.Cerca_Voce(nome);
    const QString dove = cartella.isEmpty() ? sistema_.Cartella_Temporanea() : cartella;
    const auto origine = [&](qsizetype n) { return pacchetto + u'\n' + archivio.Nome_Cercato(n); };
    QString percorso;
    if (voce >= 0) {
        percorso = File_Accanto(pacchetto, archivio.Nome_Cercato(voce));
        if (percorso.isEmpty())
            percorso = Gia_Estratto(Ultima_Cartella_Estrazione_, archivio.Nome_Cercato(voce));
        // The folders of an entry's name aren't made on disk, so files of several entries may share a name.
        if (percorso.isEmpty()) {
            percorso = Gia_Estratto(Cartella_Con_Barra(dove), Nome_Sicuro(archivio.Nome_Cercato(voce)));
            if (estratti_.value(percorso) != origine(voce))
                percorso.clear();
        }
    }
    Stato_Archivio esito = ARCHIVIO_OK;
    if (percorso.isEmpty()) {
        esito = archivio.Scompatta_Voce(voce, dove, percorso, avanzamento);
        if (voce >= 0)
            Ultima_Cartella_Estrazione_ = Cartella_Con_Barra(dove);
        if (!percorso.isEmpty())
            estratti_.insert(percorso, origine(voce));
    }
    if (stato)
        *stato = esito;
    return percorso;
}

void Estrattore::Elimina_File_Estratti() {
    for (auto file = estratti_.keyBegin(); file != estratti_.keyEnd(); ++file)
        QFile::remove(*file);
    estratti_.clear();
}

Estrazione_Privata::Estrazione_Privata(const Sistema& sistema, const QString& pacchetto, const QString& nome)
    : cartella_(Cartella_Con_Barra(sistema.Cartella_Temporanea()) + QStringLiteral("tzv_XXXXXX")) {
    const Archivio archivio(pacchetto);
    const qsizetype voce = archivio.Cerca_Voce(nome);
    if (voce < 0) {
        stato_ = archivio.Stato() != ARCHIVIO_OK ? archivio.Stato() : VOCE_ASSENTE;
        return;
    }
    const QString accanto = File_Accanto(pacchetto, archivio.Nome_Cercato(voce));
    if (!cartella_.isValid()) {
        stato_ = SCRITTURA_FALLITA;
    } else if (accanto.isEmpty()) {
        stato_ = archivio.Scompatta_Voce(voce, cartella_.path(), percorso_);
    } else {
        const QString copia = cartella_.filePath(QFileInfo(accanto).fileName());
        if (Copia_Privata(accanto, copia))
            percorso_ = copia;
        else
            stato_ = SCRITTURA_FALLITA;
    }
}

bool Copia_Privata(const QString& da, const QString& a) {
    if (!QFile::copy(da, a))
        return false;
    if (QFile::setPermissions(a, QFile::ReadOwner | QFile::WriteOwner))
        return true;
    QFile::remove(a);
    return false;
}
