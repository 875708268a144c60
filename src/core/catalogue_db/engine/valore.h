#pragma once

#include <QString>
#include <variant>

/// A field's value as the database holds it: NULL, a whole number, a number or a text.
class Valore {
  public:
    Valore() = default;  ///< NULL
    explicit Valore(qint64 numero) : dato_(numero) {}
    explicit Valore(double numero) : dato_(numero) {}
    explicit Valore(QString testo) : dato_(std::move(testo)) {}

    bool E_Nullo() const { return std::holds_alternative<std::monostate>(dato_); }
    bool E_Testo() const { return std::holds_alternative<QString>(dato_); }
    bool E_Intero() const { return std::holds_alternative<qint64>(dato_); }
    /// The value as text, numbers with "." and without needless digits; "" for NULL.
    QString Testo() const;
    /// The value as a number; a text is read as far as it is one, with "."; 0 for NULL.
    double Numero() const;
    /// The value as a whole number, rounded; 0 for NULL and for what isn't a number.
    qint64 Intero() const;

    bool operator==(const Valore& altro) const = default;

  private:
    std::variant<std::monostate, qint64, double, QString> dato_;
};
