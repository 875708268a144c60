#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

struct zip;
struct zip_source;

/// Makes a package: every entry compressed and under the packages' password, in the order of the calls. It
/// appears under its name when it is finished; until then, and after a failure, an existing file is as it
/// was.
class Archivio_In_Scrittura {
  public:
    explicit Archivio_In_Scrittura(const QString& percorso);
    Archivio_In_Scrittura(const Archivio_In_Scrittura&) = delete;
    Archivio_In_Scrittura& operator=(const Archivio_In_Scrittura&) = delete;
    ~Archivio_In_Scrittura();

    /// The file must stay until `Termina`.
    void Aggiungi_File(const QString& voce, const QString& percorso);
    void Aggiungi(const QString& voce, const QByteArray& contenuto);
    /// `voce` ends with "/".
    void Aggiungi_Cartella(const QString& voce);
    /// Writes the package. "" when it is done, else what first went wrong, with the name of the entry or
    /// file.
    QString Termina();

  private:
    void Aggiungi_Fonte(const QString& voce, zip_source* fonte);
    void Fallisci(const QString& nome, const QString& motivo);

    QString percorso_;
    zip* zip_;
    std::vector<QByteArray> contenuti_;
    QString errore_;
};
