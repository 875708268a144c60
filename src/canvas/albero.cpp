#include "canvas/albero.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <cstring>

namespace {

/// Elements that are never drawn, or that would bring in another document.
bool Da_Saltare(std::string_view nome) {
    static constexpr std::array<std::string_view, 4> NOMI = {"include", "metadata", "script",
                                                             "foreignObject"};
    return std::find(NOMI.begin(), NOMI.end(), nome) != NOMI.end();
}

class Lettore {
  public:
    Lettore(const QByteArray& testo, const Limiti& limiti, pugi::xml_document& albero)
        : xml_(testo), limiti_(limiti), qui_(albero) {
        xml_.setNamespaceProcessing(false);  // prefixes stay as they are, declared or not
    }

    QString Leggi() {
        while (!xml_.atEnd() && rifiuto_.isEmpty())
            switch (xml_.readNext()) {
                case QXmlStreamReader::StartElement:
                    Apri();
                    break;
                case QXmlStreamReader::EndElement:
                    Posa_Testo();
                    qui_ = qui_.parent();
                    --livello_;
                    testo_da_ = livello_ < testo_da_ ? 0 : testo_da_;
                    break;
                case QXmlStreamReader::Characters:
                    if (testo_da_)
                        testo_ += xml_.text().toUtf8();
                    break;
                default:
                    break;
            }
        return rifiuto_.isEmpty() && xml_.hasError() ? xml_.errorString() : rifiuto_;
    }

  private:
    void Apri() {
        const QByteArray nome = xml_.qualifiedName().toUtf8();
        const std::string_view locale = Nome_Locale(nome.constData());
        if (livello_ == 0 && locale != "svg") {
            rifiuto_ = QStringLiteral("not an SVG document");
            return;
        }
        if (Da_Saltare(locale) || Nome_Locale(qui_.name()) == "style") {
            xml_.skipCurrentElement();
            return;
        }
        Posa_Testo();
        if (++livello_ > limiti_.livelli)
            rifiuto_ = QStringLiteral("elements nested too deep");
        else if (++elementi_ > limiti_.elementi)
            rifiuto_ = QStringLiteral("too many elements");
        if (!testo_da_ && (locale == "text" || locale == "style"))
            testo_da_ = livello_;
        qui_ = qui_.append_child(nome.constData());
        byte_ += nome.size();
        for (const QXmlStreamAttribute& attributo : xml_.attributes()) {
            const QByteArray chiave = attributo.qualifiedName().toUtf8(), valore = attributo.value().toUtf8();
            qui_.append_attribute(chiave.constData()).set_value(valore.constData());
            byte_ += chiave.size() + valore.size();
        }
        if (byte_ > limiti_.byte_documento)
            rifiuto_ = QStringLiteral("document too large");
    }

    /// Text is set down in one piece, whatever stood in between: a style sheet is read as one.
    void Posa_Testo() {
        if (testo_.isEmpty())
            return;
        byte_ += testo_.size();
        qui_.append_child(pugi::node_pcdata).set_value(testo_.constData());
        testo_.clear();
    }

    QXmlStreamReader xml_;
    const Limiti& limiti_;
    pugi::xml_node qui_;
    QString rifiuto_;
    int livello_ = 0, elementi_ = 0;
    int testo_da_ = 0;  ///< nesting of the element inside which text counts, 0 outside
    QByteArray testo_;
    qint64 byte_ = 0;
};

}  // namespace

bool Leggi_Albero(const QByteArray& testo, const Limiti& limiti, pugi::xml_document& albero,
                  QString& rifiuto) {
    rifiuto = Lettore(testo, limiti, albero).Leggi();
    return rifiuto.isEmpty();
}

QByteArray Testo_Di(const pugi::xml_document& albero) {
    struct : pugi::xml_writer {
        void write(const void* dati, size_t lunghezza) override {
            testo.append(static_cast<const char*>(dati), static_cast<qsizetype>(lunghezza));
        }
        QByteArray testo;
    } scrittore;
    albero.save(scrittore, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return scrittore.testo;
}

std::string_view Nome_Locale(const char* nome) {
    const char* punti = std::strchr(nome, ':');
    return punti ? punti + 1 : nome;
}

pugi::xml_node Seguente(const pugi::xml_node& radice, pugi::xml_node nodo) {
    do {
        if (nodo.first_child()) {
            nodo = nodo.first_child();
        } else {
            while (nodo != radice && !nodo.next_sibling())
                nodo = nodo.parent();
            nodo = nodo == radice ? pugi::xml_node() : nodo.next_sibling();
        }
    } while (nodo && nodo.type() != pugi::node_element);
    return nodo;
}
