#include "core/archivio/archivio.h"

#include <zip.h>

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryFile>
#include <cstdio>

#include "core/base/percorsi.h"

namespace {

constexpr qint64 BLOCCO = 256 * 1024;

// What a catalogue's file can be at most. Drawings and databases pack far less than 200 to 1; small files may
// be as regular as they like.
constexpr qint64 MASSIMO_VOCE = qint64{2} << 30;
constexpr qint64 SOGLIA_RAPPORTO = qint64{64} << 20;
constexpr qint64 MASSIMO_RAPPORTO = 200;

/// An entry that is being read.
class Voce_Aperta {
  public:
    Voce_Aperta(zip_t* zip, qsizetype voce)
        : file_(zip_fopen_index_encrypted(zip, static_cast<zip_uint64_t>(voce), 0,
                                          PASSWORD_PACCHETTO.constData()),
                &zip_fclose) {}
    /// Number of bytes read, 0 at the end, below 0 for a failure.
    qint64 Leggi(char* dati, qint64 byte) const {
        return file_ ? zip_fread(file_.get(), dati, static_cast<zip_uint64_t>(byte)) : -1;
    }

  private:
    std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file_;
};

bool Spazio_Sufficiente(const QString& cartella, qint64 byte) {
    const QStorageInfo disco(cartella);
    return !disco.isValid() || disco.bytesAvailable() > byte;  // unknown: the writing will tell
}

}  // namespace

QString Descrizione_Stato(Stato_Archivio stato) {
    switch (stato) {
        case ARCHIVIO_OK:
            return {};
        case ARCHIVIO_ASSENTE:
            return QStringLiteral("The file was not found.");
        case ARCHIVIO_NON_VALIDO:
            return QStringLiteral("The file is not a catalogue package, or it is damaged.");
        case VOCE_ASSENTE:
            return QStringLiteral("The package holds no catalogue database.");
        case VOCE_NON_LEGGIBILE:
            return QStringLiteral("The package is damaged or protected with another password.");
        case VOCE_NON_AMMESSA:
            return QStringLiteral("The package holds a file that no catalogue can have.");
        case SPAZIO_INSUFFICIENTE:
            return QStringLiteral("There is not enough space in the temporary folder.");
        default:
            return QStringLiteral("The temporary folder can't be written.");
    }
}

Archivio::Archivio(const QString& percorso) {
    const QFileInfo info(percorso);
    if (!info.isFile()) {
        stato_ = ARCHIVIO_ASSENTE;
        return;
    }
    dimensione_ = info.size();
    zip_t* zip = zip_open(QFile::encodeName(percorso).constData(), ZIP_RDONLY, nullptr);
    if (!zip) {
        stato_ = ARCHIVIO_NON_VALIDO;
        return;
    }
    zip_.reset(zip, zip_discard);
    const zip_int64_t n = zip_get_num_entries(zip, 0);
    QStringList nomi;
    voci_.reserve(static_cast<size_t>(n));
    for (zip_int64_t i = 0; i < n; ++i) {
        Voce_Archivio voce;
        zip_stat_t dati;
        zip_stat_init(&dati);
        if (zip_stat_index(zip, static_cast<zip_uint64_t>(i), 0, &dati) == 0) {
            voce.Nome = QString::fromUtf8(dati.name);
            if (dati.valid & ZIP_STAT_SIZE)
                voce.Byte = static_cast<qint64>(dati.size);
            if (dati.valid & ZIP_STAT_COMP_SIZE)
                voce.Compressi = static_cast<qint64>(dati.comp_size);
            voce.Cifrata = dati.encryption_method != ZIP_EM_NONE;
        }
        nomi += voce.Nome;
        voci_.push_back(std::move(voce));
    }
    nomi_ = Nomi_Voci(nomi);
}

bool Archivio::E_Ammessa(const Voce_Archivio& voce) const {
    if (voce.Byte < 0 || voce.Compressi < 0 || voce.Byte > MASSIMO_VOCE)
        return false;
    // A packed size beyond the archive's own is a lie that would make any ratio good.
    return voce.Byte <= SOGLIA_RAPPORTO ||
           voce.Byte / MASSIMO_RAPPORTO <= std::min(voce.Compressi, dimensione_);
}

Stato_Archivio Archivio::Leggi(qsizetype voce, const Blocco& prendi, Avanzamento* avanzamento) const {
    if (stato_ != ARCHIVIO_OK)
        return stato_;
    if (voce < 0)
        return VOCE_ASSENTE;
    const Voce_Archivio& dati = voci_.at(static_cast<size_t>(voce));
    if (!E_Ammessa(dati))
        return VOCE_NON_AMMESSA;
    const Voce_Aperta file(zip_.get(), voce);
    QByteArray blocco(BLOCCO, Qt::Uninitialized);
    for (qint64 letti = 0;;) {
        const qint64 n = file.Leggi(blocco.data(), blocco.size());
        if (n < 0)
            return VOCE_NON_LEGGIBILE;
        if (n == 0)
            return letti == dati.Byte ? ARCHIVIO_OK : VOCE_NON_LEGGIBILE;
        letti += n;
        if (letti > dati.Byte)
            return VOCE_NON_AMMESSA;
        if (const Stato_Archivio stato = prendi(blocco.constData(), n))
            return stato;
        if (avanzamento)
            avanzamento->Avanza(letti, dati.Byte);
    }
}

Stato_Archivio Archivio::Leggi_Voce(qsizetype voce, QFileDevice& file, Avanzamento* avanzamento) const {
    const auto esito = [&file](bool scritto) -> Stato_Archivio {
        if (scritto)
            return ARCHIVIO_OK;
        return file.error() == QFileDevice::ResourceError ? SPAZIO_INSUFFICIENTE : SCRITTURA_FALLITA;
    };
    const Stato_Archivio stato = Leggi(
        voce, [&](const char* dati, qint64 n) { return esito(file.write(dati, n) == n); }, avanzamento);
    return stato != ARCHIVIO_OK ? stato : esito(file.flush());
}

Stato_Archivio Archivio::Scompatta_Voce(qsizetype voce, const QString& cartella, QString& percorso_estratto,
                                        Avanzamento* avanzamento) const {
    percorso_estratto.clear();
    if (stato_ != ARCHIVIO_OK)
        return stato_;
    if (voce < 0)
        return VOCE_ASSENTE;
    const QString nome = Nome_Sicuro(Nome_Cercato(voce));
    const Voce_Archivio& dati = voci_.at(static_cast<size_t>(voce));
    if (nome.isEmpty() || !E_Ammessa(dati))
        return VOCE_NON_AMMESSA;
    if (!Spazio_Sufficiente(cartella, dati.Byte))
        return SPAZIO_INSUFFICIENTE;

    // Always a new file of ours alone, never one that somebody put in our way.
    QTemporaryFile file(Cartella_Con_Barra(cartella) + QStringLiteral(".tzv_XXXXXX"));
    if (!file.open())
        return SCRITTURA_FALLITA;
    if (const Stato_Archivio stato = Leggi_Voce(voce, file, avanzamento))
        return stato;
    // This takes the place of whatever stands there, of a link too.
    const QString percorso = Cartella_Con_Barra(cartella) + nome;
    if (std::rename(QFile::encodeName(file.fileName()).constData(),
                    QFile::encodeName(percorso).constData()) != 0)
        return SCRITTURA_FALLITA;
    file.setAutoRemove(false);
    percorso_estratto = percorso;
    return ARCHIVIO_OK;
}

QByteArray Archivio::Inizio_Voce(qsizetype voce, qint64 byte) const {
    QByteArray inizio(byte, Qt::Uninitialized);
    inizio.truncate(std::max<qint64>(0, Voce_Aperta(zip_.get(), voce).Leggi(inizio.data(), byte)));
    return inizio;
}

Stato_Archivio Archivio::Verifica_Pacchetto() const {
    for (size_t i = 0; i < voci_.size(); ++i) {
        if (voci_[i].E_Cartella())
            continue;  // a folder has no content
        const auto lascia = [](const char*, qint64) -> Stato_Archivio { return ARCHIVIO_OK; };
        if (const Stato_Archivio stato = Leggi(static_cast<qsizetype>(i), lascia, nullptr))
            return stato;
    }
    return stato_;
}
