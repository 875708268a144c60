#include "core/base/percorsi.h"

#include <QDir>
#include <QFile>
#include <filesystem>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr qsizetype CODA_NOME_FILE = 999;

QString Ultimo_Componente(const QString& percorso) {
    return percorso.sliced(percorso.lastIndexOf(QDir::separator()) + 1);
}

void Svuota_E_Rimuovi(const fs::path& cartella) {
    std::error_code errore;
    // A folder that its owner may not write to or search can't be emptied.
    fs::permissions(cartella, fs::perms::owner_all, fs::perm_options::add, errore);

    std::vector<fs::path> sottocartelle;
    std::vector<fs::path> file;
    for (fs::directory_iterator it(cartella, errore), fine; !errore && it != fine; it.increment(errore)) {
        std::error_code errore_stato;
        const bool e_cartella = fs::is_directory(it->symlink_status(errore_stato));
        (e_cartella ? sottocartelle : file).push_back(it->path());
    }
    for (const fs::path& percorso : file)
        fs::remove(percorso, errore);
    for (const fs::path& percorso : sottocartelle)
        Svuota_E_Rimuovi(percorso);
    fs::remove(cartella, errore);
}

}  // namespace

QString Cartella_Con_Barra(const QString& percorso) {
    return percorso.endsWith(QDir::separator()) ? percorso : percorso + QDir::separator();
}

QString Nome_File(const QString& percorso, QStringView separatore) {
    const qsizetype inizio = qMax<qsizetype>(0, percorso.size() - CODA_NOME_FILE);
    const QStringView coda = QStringView(percorso).sliced(inizio);
    const qsizetype taglio = separatore.isEmpty() ? -1 : coda.lastIndexOf(separatore);
    return taglio < 0 ? percorso : coda.sliced(taglio + separatore.size()).toString();
}

QString Cartella_File(const QString& percorso, QStringView separatore) {
    const qsizetype taglio = separatore.isEmpty() ? -1 : percorso.lastIndexOf(separatore);
    return taglio < 0 ? QString() : percorso.first(taglio + separatore.size());
}

QString Estensione_File(const QString& percorso) {
    // Such a path may come from a catalogue, whose publisher's separator needn't be this system's.
    const QString nome = percorso.sliced(qMax(percorso.lastIndexOf(u'/'), percorso.lastIndexOf(u'\\')) + 1);
    const qsizetype punto = nome.indexOf(u'.');
    return punto <= 0 ? QString() : nome.sliced(punto + 1);
}

qint16 Tipo_File(const QString& percorso) {
    const QString nome = Ultimo_Componente(percorso);
    const qsizetype punto = nome.lastIndexOf(u'.');
    return punto >= 0 && nome.sliced(punto).contains(u"TZF", Qt::CaseInsensitive) ? 2 : 3;
}

void Elimina_Cartella(const QString& cartella) {
    // With a separator at its end, the path of a link would stand for the folder behind it.
    QString percorso = cartella;
    while (percorso.endsWith(QDir::separator()))
        percorso.chop(1);
    if (percorso.isEmpty())
        return;
    const fs::path radice(QFile::encodeName(percorso).toStdString());
    std::error_code errore;
    const fs::file_status stato = fs::symlink_status(radice, errore);
    if (fs::is_symlink(stato))
        fs::remove(radice, errore);
    else if (fs::is_directory(stato))
        Svuota_E_Rimuovi(radice);
}
