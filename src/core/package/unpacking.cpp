#include "core/package/unpacking.h"

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <zip.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

#include "core/base/testo.h"

namespace {

constexpr size_t BLOCCO = 256 * 1024;
constexpr qsizetype MASSIMO_NOME = 255;  // bytes of a file name on the usual file systems

// What a catalogue's file can be at most. Drawings and databases pack far less than 200 to 1; small files may
// be as regular as they like.
constexpr quint64 MASSIMO_VOCE = Q_UINT64_C(2) << 30;
constexpr quint64 SOGLIA_RAPPORTO = Q_UINT64_C(64) << 20;
constexpr quint64 MASSIMO_RAPPORTO = 200;

bool Dimensione_Ammessa(quint64 byte, quint64 compressi) {
    if (byte > MASSIMO_VOCE)
        return false;
    return byte <= SOGLIA_RAPPORTO || byte / MASSIMO_RAPPORTO <= compressi;
}

/// An open archive, read only. The package is never changed.
class Archivio {
  public:
    explicit Archivio(const QString& percorso) {
        const QFileInfo info(percorso);
        if (!info.isFile()) {
            stato_ = ARCHIVIO_ASSENTE;
            return;
        }
        dimensione_ = static_cast<quint64>(info.size());
        int errore = 0;
        zip_.reset(zip_open(QFile::encodeName(percorso).constData(), ZIP_RDONLY, &errore));
        if (!zip_)
            stato_ = ARCHIVIO_NON_VALIDO;
    }

    Stato_Archivio Stato() const { return stato_; }
    quint64 Voci() const { return static_cast<quint64>(zip_get_num_entries(zip_.get(), 0)); }
    QString Nome(quint64 i) const { return QString::fromUtf8(zip_get_name(zip_.get(), i, ZIP_FL_ENC_GUESS)); }
    /// Declared size of an entry; false when it isn't told or isn't allowed.
    bool Dimensione(quint64 i, quint64& byte) const {
        zip_stat_t dati;
        if (zip_stat_index(zip_.get(), i, 0, &dati) != 0 || !(dati.valid & ZIP_STAT_SIZE) ||
            !(dati.valid & ZIP_STAT_COMP_SIZE))
            return false;
        byte = dati.size;
        // A packed size beyond the archive's own is a lie that would make any ratio good.
        return Dimensione_Ammessa(byte, qMin<quint64>(dati.comp_size, dimensione_));
    }
    /// Reads an entry block by block, to its checksum.
    Stato_Archivio Leggi(quint64 i, const std::function<Stato_Archivio(const char*, size_t)>& scrivi,
                         Avanzamento* avanzamento) const {
        quint64 totale = 0;
        if (!Dimensione(i, totale))
            return VOCE_NON_AMMESSA;
        const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(
            zip_fopen_index_encrypted(zip_.get(), i, 0, PASSWORD_PACCHETTO.constData()), &zip_fclose);
        if (!file)
            return VOCE_NON_LEGGIBILE;
        std::vector<char> blocco(BLOCCO);
        quint64 letti = 0;
        for (;;) {
            const zip_int64_t n = zip_fread(file.get(), blocco.data(), blocco.size());
            if (n < 0)
                return VOCE_NON_LEGGIBILE;
            if (n == 0)
                return letti == totale ? ARCHIVIO_OK : VOCE_NON_LEGGIBILE;
            letti += static_cast<quint64>(n);
            if (letti > totale)
                return VOCE_NON_AMMESSA;
            if (const Stato_Archivio stato = scrivi(blocco.data(), static_cast<size_t>(n)))
                return stato;
            if (avanzamento)
                avanzamento->Avanza(static_cast<qint64>(letti), static_cast<qint64>(totale));
        }
    }

  private:
    struct Chiudi {
        void operator()(zip_t* zip) const { zip_discard(zip); }
    };
    std::unique_ptr<zip_t, Chiudi> zip_;
    quint64 dimensione_ = 0;
    Stato_Archivio stato_ = ARCHIVIO_OK;
};

/// A file that is being written: under a temporary name, which goes unless the file is put in its place.
class File_In_Arrivo {
  public:
    explicit File_In_Arrivo(const QString& cartella)
        : nome_(QFile::encodeName(cartella + QStringLiteral(".tzv_XXXXXX"))),
          // Always a new file of ours alone (O_EXCL, 0600), never one that somebody put in our way.
          fd_(::mkostemp(nome_.data(), O_CLOEXEC)) {}
    ~File_In_Arrivo() {
        if (fd_ >= 0)
            ::close(fd_);
        if (creato_)
            ::unlink(nome_.constData());
    }
    File_In_Arrivo(const File_In_Arrivo&) = delete;
    File_In_Arrivo& operator=(const File_In_Arrivo&) = delete;

    bool Aperto() const { return fd_ >= 0; }
    Stato_Archivio Scrivi(const char* dati, size_t byte) {
        while (byte > 0) {
            const ssize_t n = ::write(fd_, dati, byte);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                return errno == ENOSPC || errno == EDQUOT ? SPAZIO_INSUFFICIENTE : SCRITTURA_FALLITA;
            dati += n;
            byte -= static_cast<size_t>(n);
        }
        return ARCHIVIO_OK;
    }
    bool Metti_A_Posto(const QString& percorso) {
        const bool chiuso = ::close(fd_) == 0;
        fd_ = -1;
        if (!chiuso || std::rename(nome_.constData(), QFile::encodeName(percorso).constData()) != 0)
            return false;
        creato_ = false;
        return true;
    }

  private:
    QByteArray nome_;
    int fd_;
    bool creato_ = fd_ >= 0;
};

bool Spazio_Sufficiente(const QString& cartella, quint64 byte) {
    struct statvfs disco;
    if (::statvfs(QFile::encodeName(cartella).constData(), &disco) != 0 || disco.f_blocks == 0)
        return true;  // unknown: the writing will tell
    return disco.f_bavail >= byte / disco.f_frsize + 1;
}

QString Con_Barre(QString voce) {
    return voce.replace(u'\\', u'/');
}

/// The entry's path below a folder; "" when it would lead out of it.
QString Sotto(const QString& cartella, const QString& voce) {
    for (const QString& parte : Con_Barre(voce).split(u'/'))
        if (parte.isEmpty() || parte != Nome_Sicuro(parte))
            return {};
    return cartella + Con_Barre(voce);
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

Stato_Archivio Elenca_Pacchetto(const QString& archivio, QStringList& voci) {
    voci.clear();
    const Archivio zip(archivio);
    if (zip.Stato() != ARCHIVIO_OK)
        return zip.Stato();
    const quint64 n = zip.Voci();
    voci.reserve(static_cast<qsizetype>(n));
    for (quint64 i = 0; i < n; ++i)
        voci.append(zip.Nome(i));
    return ARCHIVIO_OK;
}

Stato_Archivio Scompatta_Voce(const QString& archivio, const QString& cartella,
                              const QString& cartella_sistema, const QString& voce,
                              QString& percorso_estratto, Avanzamento* avanzamento) {
    percorso_estratto.clear();
    const Archivio zip(archivio);
    if (zip.Stato() != ARCHIVIO_OK)
        return zip.Stato();

    const QString cercata = Con_Barre(voce);
    quint64 trovata = zip.Voci();
    for (quint64 i = zip.Voci(); i > 0 && trovata == zip.Voci(); --i)
        if (Con_Barre(zip.Nome(i - 1)) == cercata)
            trovata = i - 1;
    if (trovata == zip.Voci())
        return VOCE_ASSENTE;

    const QString nome = Nome_Sicuro(voce);
    quint64 byte = 0;
    if (nome.isEmpty() || !zip.Dimensione(trovata, byte))
        return VOCE_NON_AMMESSA;
    const QString destinazione = Cartella_Con_Barra(cartella.isEmpty() ? cartella_sistema : cartella);
    if (!Spazio_Sufficiente(destinazione, byte))
        return SPAZIO_INSUFFICIENTE;

    File_In_Arrivo file(destinazione);
    if (!file.Aperto())
        return SCRITTURA_FALLITA;
    const Stato_Archivio stato = zip.Leggi(
        trovata, [&file](const char* dati, size_t n) { return file.Scrivi(dati, n); }, avanzamento);
    if (stato != ARCHIVIO_OK)
        return stato;
    if (!file.Metti_A_Posto(destinazione + nome))
        return SCRITTURA_FALLITA;
    percorso_estratto = destinazione + nome;
    return ARCHIVIO_OK;
}

Stato_Archivio Verifica_Pacchetto(const QString& archivio) {
    const Archivio zip(archivio);
    if (zip.Stato() != ARCHIVIO_OK)
        return zip.Stato();
    for (quint64 i = 0; i < zip.Voci(); ++i) {
        if (zip.Nome(i).endsWith(u'/'))
            continue;  // a folder has no content
        const Stato_Archivio stato = zip.Leggi(
            i, [](const char*, size_t) { return Stato_Archivio(ARCHIVIO_OK); }, nullptr);
        if (stato != ARCHIVIO_OK)
            return stato;
    }
    return ARCHIVIO_OK;
}

QString Nome_Sicuro(const QString& voce) {
    const QString barre = Con_Barre(voce);
    const QString nome = barre.sliced(barre.lastIndexOf(u'/') + 1);
    if (nome == u"." || nome == u"..")
        return {};
    if (nome.size() >= 2 && nome[1] == u':' && nome[0].isLetter())  // "C:file"
        return {};
    for (const QChar c : nome)
        if (c.category() == QChar::Other_Control)
            return {};
    return QFile::encodeName(nome).size() > MASSIMO_NOME ? QString() : nome;
}

QString Cerca_Voce_Pacchetto(const QString& pacchetto, const QString& nome) {
    QString voce;
    Cerca_Voce_Pacchetto(pacchetto, nome, voce);
    return voce;
}

Stato_Archivio Cerca_Voce_Pacchetto(const QString& pacchetto, const QString& nome, QString& voce) {
    voce.clear();
    QStringList voci;
    if (const Stato_Archivio stato = Elenca_Pacchetto(pacchetto, voci))
        return stato;
    for (qsizetype i = voci.size() - 1; i >= 0; --i) {
        const QString trovata = Con_Barre(voci[i].trimmed());
        if (trovata.endsWith(nome)) {
            voce = trovata;
            return ARCHIVIO_OK;
        }
    }
    return VOCE_ASSENTE;
}

QString File_Accanto(const Indirizzo_Voce& indirizzo) {
    if (indirizzo.Pacchetto.isEmpty())
        return {};
    const QString cartella = Cartella_Con_Barra(QFileInfo(indirizzo.Pacchetto).absolutePath());
    const QString percorso = Sotto(cartella, indirizzo.Voce);
    return !percorso.isEmpty() && QFileInfo(percorso).isFile() ? percorso : QString();
}

QString Estrattore::Estrai_Da_Pacchetto(const Indirizzo_Voce& indirizzo, const QString& cartella,
                                        Avanzamento* avanzamento, Stato_Archivio* stato) {
    Stato_Archivio esito = VOCE_ASSENTE;
    QString percorso;
    const auto risposta = [&] {
        if (stato)
            *stato = percorso.isEmpty() ? esito : ARCHIVIO_OK;
        return percorso;
    };
    if (indirizzo.Pacchetto.isEmpty() && QFileInfo(indirizzo.Voce).isFile())
        percorso = indirizzo.Voce;
    if (!percorso.isEmpty() || indirizzo.Voce.isEmpty())
        return risposta();

    percorso = File_Accanto(indirizzo);
    if (!percorso.isEmpty())
        return risposta();

    if (!Ultima_Cartella_Estrazione_.isEmpty()) {
        const QString gia_estratto = Sotto(Ultima_Cartella_Estrazione_, indirizzo.Voce);
        // That folder may be the system's temporary one, where anybody can put a file: only our own counts.
        const QFileInfo info(gia_estratto);
        if (!gia_estratto.isEmpty() && info.isFile() && !info.isSymLink() && info.ownerId() == ::geteuid()) {
            percorso = gia_estratto;
            return risposta();
        }
    }

    const QString sistema = sistema_.Cartella_Temporanea();
    esito = Scompatta_Voce(indirizzo.Pacchetto, cartella, sistema, indirizzo.Voce, percorso, avanzamento);
    if (esito != ARCHIVIO_ASSENTE)
        Ultima_Cartella_Estrazione_ = Cartella_Con_Barra(cartella.isEmpty() ? sistema : cartella);
    if (!percorso.isEmpty())
        file_estratti_.append(percorso);
    return risposta();
}

void Estrattore::Elimina_File_Estratti() {
    for (const QString& file : std::as_const(file_estratti_))
        QFile::remove(file);
    file_estratti_.clear();
}

Estrazione_Privata::Estrazione_Privata(const Sistema& sistema, const QString& pacchetto,
                                       const QString& nome) {
    QString voce;
    stato_ = Cerca_Voce_Pacchetto(pacchetto, nome, voce);
    if (stato_ != ARCHIVIO_OK)
        return;
    percorso_ = File_Accanto({pacchetto, voce});
    if (!percorso_.isEmpty())
        return;
    QByteArray modello =
        QFile::encodeName(Cartella_Con_Barra(sistema.Cartella_Temporanea()) + QStringLiteral("tzv_XXXXXX"));
    if (!::mkdtemp(modello.data())) {
        stato_ = errno == ENOSPC ? SPAZIO_INSUFFICIENTE : SCRITTURA_FALLITA;
        return;
    }
    cartella_ = QFile::decodeName(modello);
    stato_ = Scompatta_Voce(pacchetto, cartella_, {}, voce, percorso_);
}

Estrazione_Privata::~Estrazione_Privata() {
    Elimina_Cartella(cartella_);
}
