// Every hotspot of every drawing of the sample, reached by its place on the page: the real program, driven
// from outside as the user's mouse would drive it.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int MS_RISPOSTA = 60'000;

class Programma {
  public:
    Programma() {
        processo_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        processo_.start(QStringLiteral(VIEWER_DRIVER),
                        {QStringLiteral("--settings"), cartella_.filePath(QStringLiteral("s.ini")),
                         QStringLiteral(SAMPLE_PACKAGE)});
    }
    ~Programma() {
        Prova("quit");
        processo_.waitForFinished(MS_RISPOSTA);
    }

    QJsonObject Prova(const char* comando, QJsonObject altro = {}) {
        altro.insert(QStringLiteral("do"), QLatin1String(comando));
        processo_.write(QJsonDocument(altro).toJson(QJsonDocument::Compact) + '\n');
        while (!processo_.canReadLine())
            if (!processo_.waitForReadyRead(MS_RISPOSTA))
                throw std::runtime_error("the program doesn't answer");
        return QJsonDocument::fromJson(processo_.readLine()).object();
    }
    /// The same for what has to succeed.
    QJsonObject Fai(const char* comando, const QJsonObject& altro = {}) {
        const QJsonObject risposta = Prova(comando, altro);
        if (!risposta.value(QStringLiteral("ok")).toBool())
            throw std::runtime_error(
                QStringLiteral("%1 %2: %3")
                    .arg(QLatin1String(comando),
                         QString::fromUtf8(QJsonDocument(altro).toJson(QJsonDocument::Compact)),
                         risposta.value(QStringLiteral("error")).toString())
                    .toStdString());
        return risposta;
    }
    void Premi(const char* key) { Fai("command", {{QStringLiteral("key"), QLatin1String(key)}}); }
    void HotSpot(const QString& nome, const char* evento) {
        Fai("hotspot", {{QStringLiteral("name"), nome}, {QStringLiteral("event"), QLatin1String(evento)}});
    }

  private:
    QTemporaryDir cartella_;
    QProcess processo_;
};

/// What the canvas told, each event as "event string".
QStringList Eventi(const QJsonObject& tavola) {
    QStringList eventi;
    for (const QJsonValue& e : tavola.value(QStringLiteral("events")).toArray())
        eventi << e[QStringLiteral("event")].toString() + u' ' + e[QStringLiteral("string")].toString();
    return eventi;
}

QString Documento(const QJsonObject& tavola) {
    return tavola.value(QStringLiteral("document")).toString();
}

/// The strings of the hotspots, in their order; only the lit ones with `evidenti`.
QStringList Stringhe(const QJsonObject& tavola, bool evidenti = false) {
    QStringList stringhe;
    for (const QJsonValue& h : tavola.value(QStringLiteral("hotspots")).toArray())
        if (!evidenti || h[QStringLiteral("highlighted")].toBool())
            stringhe << h[QStringLiteral("string")].toString();
    stringhe.removeDuplicates();
    return stringhe;
}

struct Ingrandimento {
    const char* nome;
    const char* key;  ///< button that is pressed after the whole drawing is shown
    int volte;
};

void PrintTo(const Ingrandimento& caso, std::ostream* uscita) {
    *uscita << caso.nome;
}

class Disegni : public testing::TestWithParam<Ingrandimento> {
  protected:
    void Filtra(const char* mercato) {
        p.Fai("filter", {{QStringLiteral("mercato"), QLatin1String(mercato)},
                         {QStringLiteral("gruppo"), QStringLiteral("/CLIENTI/DEALER/SERVICE/")}});
        p.Fai("click", {{QStringLiteral("object"), QStringLiteral("Label_consulta_catalogo")}});
    }
    /// Keys of the products, in the order of the tree, and what stands above each node.
    QStringList Prodotti() {
        QStringList prodotti;
        for (const QJsonValue& n : p.Fai("tree").value(QStringLiteral("nodes")).toArray()) {
            const QString key = n[QStringLiteral("key")].toString();
            padri_[key] = n[QStringLiteral("parent")].toString();
            if (key.startsWith(u"P_") || key.startsWith(u"X_"))
                prodotti << key;
        }
        return prodotti;
    }
    void Apri(const QString& key) {
        if (aperti_.contains(key) || padri_.value(key).isEmpty() || aperti_.contains(padri_.value(key))) {
            p.Fai("click_node", {{QStringLiteral("key"), key}});
        } else {
            Apri(padri_.value(key));
            p.Fai("click_node", {{QStringLiteral("key"), key}});
        }
        aperti_.insert(key);  // a click opens a node
    }
    void Ingrandisci(const Ingrandimento& livello) {
        p.Premi("KEY_ZOOM_ALL");
        for (int i = 0; i < livello.volte; ++i)
            p.Premi(livello.key);
    }
    QJsonObject Tavola() { return p.Fai("canvas"); }

    /// Points at, clicks and double clicks the hotspot; each has to reach it and no other.
    void Raggiungi(const QString& prodotto, const QString& stringa, const Ingrandimento& livello) {
        p.HotSpot(stringa, "enter");
        const QJsonObject sopra = Tavola();
        const QString documento = Documento(sopra);
        EXPECT_EQ(Eventi(sopra).value(Eventi(sopra).size() - 1).toStdString(),
                  "enter " + stringa.toStdString());
        EXPECT_TRUE(Stringhe(sopra, true).contains(stringa));
        for (const char* evento : {"click", "double_click"}) {
            p.HotSpot(stringa, evento);
            const QJsonObject dopo = Tavola();
            const QStringList clic = Eventi(dopo).filter(QStringLiteral("click "));
            EXPECT_FALSE(clic.isEmpty()) << evento;
            for (const QString& detto : clic)
                EXPECT_EQ(detto.section(u' ', 1).toStdString(), stringa.toStdString());
            if (Documento(dopo) == documento) {
                EXPECT_EQ(clic.contains(QStringLiteral("double_click ") + stringa), evento[0] == 'd');
                continue;
            }
            ++seguiti;  // a link: its page is up
            Apri(prodotto);
            Ingrandisci(livello);
            Tavola();
        }
        ++raggiunti;
    }

    void Percorri(const QString& prodotto, const Ingrandimento& livello) {
        Apri(prodotto);
        const QJsonObject tavola = Tavola();
        const QStringList stringhe = Stringhe(tavola);
        if (!tavola.value(QStringLiteral("visible")).toBool() || stringhe.isEmpty())
            return;
        ++disegni;
        Ingrandisci(livello);
        for (const QString& stringa : stringhe) {
            SCOPED_TRACE(QStringLiteral("%1, hotspot %2").arg(prodotto, stringa).toStdString());
            try {
                Raggiungi(prodotto, stringa, livello);
            } catch (const std::exception& errore) {
                ADD_FAILURE() << errore.what();
            }
        }
    }

    Programma p;
    int disegni = 0, raggiunti = 0, seguiti = 0;

  private:
    QHash<QString, QString> padri_;
    QSet<QString> aperti_;
};

TEST_P(Disegni, ReachesEveryHotspotOfTheSample) {
    Filtra("1");
    for (const QString& prodotto : Prodotti())
        Percorri(prodotto, GetParam());
    EXPECT_GE(disegni, 30);
    EXPECT_GE(raggiunti, disegni * 8);
    EXPECT_GE(seguiti, 15 * 2);
}

INSTANTIATE_TEST_SUITE_P(Ingrandimenti, Disegni,
                         testing::Values(Ingrandimento{"fitted", "KEY_ZOOM_PIU", 0},
                                         Ingrandimento{"enlarged", "KEY_ZOOM_PIU", 4},
                                         Ingrandimento{"reduced", "KEY_ZOOM_MENO", 1}),
                         [](const auto& caso) { return std::string(caso.param.nome); });

}  // namespace

int main(int argc, char* argv[]) {
    QCoreApplication programma(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
