#pragma once

#include <QByteArray>
#include <QString>
#include <variant>

/// A field's value as the database holds it: NULL, a whole number, a number, a text or bytes.
class Valore {
  public:
    Valore() = default;  ///< NULL
    explicit Valore(qint64 numero) : dato_(numero) {}
    explicit Valore(double numero) : dato_(numero) {}
    explicit Valore(QString testo) : dato_(std::move(testo)) {}
    /// A text as the database stores it. What no `QString` gives back as it is (it isn't UTF-8, or begins
    /// with a byte-order mark) is kept in bytes.
    static Valore Da_Testo(QByteArrayView utf8);
    /// Bytes that aren't a text.
    static Valore Da_Byte(QByteArray byte) { return Valore(Grezzo{std::move(byte), false}); }

    bool E_Nullo() const { return std::holds_alternative<std::monostate>(dato_); }
    bool E_Testo() const;
    bool E_Byte() const { return !E_Testo() && std::holds_alternative<Grezzo>(dato_); }
    bool E_Intero() const { return std::holds_alternative<qint64>(dato_); }
    /// The value as text, numbers with "." and without needless digits, bytes read as UTF-8; "" for NULL.
    QString Testo() const;
    /// The value as a number; a text is read as far as it is one, with "."; 0 for NULL.
    double Numero() const;
    /// The value as a whole number, rounded; 0 for NULL and for what isn't a number.
    qint64 Intero() const;
    /// The bytes of a text (in UTF-8) or of bytes exactly as they are stored; of a number, those of its text.
    QByteArray Byte() const;

    bool operator==(const Valore& altro) const = default;

  private:
    struct Grezzo {
        QByteArray Byte;
        bool E_Testo;
        bool operator==(const Grezzo&) const = default;
    };
    explicit Valore(Grezzo grezzo) : dato_(std::move(grezzo)) {}

    std::variant<std::monostate, qint64, double, QString, Grezzo> dato_;
};
