#include "core/catalogue_db/engine/recordset.h"

#include <sqlite3.h>

#include <utility>

#include "core/catalogue_db/engine/connessione.h"

namespace {
int Lega(sqlite3_stmt* statement, int posto, const Valore& valore) {
    if (valore.E_Nullo())
        return sqlite3_bind_null(statement, posto);
    if (valore.E_Intero())
        return sqlite3_bind_int64(statement, posto, valore.Intero());
    if (!valore.E_Testo() && !valore.E_Byte())
        return sqlite3_bind_double(statement, posto, valore.Numero());
    const QByteArray byte = valore.Byte();
    const auto dimensione = static_cast<int>(byte.size());
    return valore.E_Testo()
               ? sqlite3_bind_text(statement, posto, byte.constData(), dimensione, SQLITE_TRANSIENT)
               : sqlite3_bind_blob(statement, posto, byte.constData(), dimensione, SQLITE_TRANSIENT);
}
}  // namespace

Recordset::Recordset(std::shared_ptr<Connessione> connessione, sqlite3_stmt* statement)
    : connessione_(std::move(connessione)), statement_(statement) {
    const int campi = sqlite3_column_count(statement_);
    campi_.reserve(campi);
    for (int i = 0; i < campi; ++i)
        campi_ += QString::fromUtf8(sqlite3_column_name(statement_, i));
}

Recordset::Recordset(Recordset&& altro) noexcept
    : connessione_(std::move(altro.connessione_)),
      statement_(std::exchange(altro.statement_, nullptr)),
      campi_(std::move(altro.campi_)),
      fine_(std::exchange(altro.fine_, true)) {}

Recordset& Recordset::operator=(Recordset&& altro) noexcept {
    if (this != &altro) {
        Close();
        connessione_ = std::move(altro.connessione_);
        statement_ = std::exchange(altro.statement_, nullptr);
        campi_ = std::move(altro.campi_);
        fine_ = std::exchange(altro.fine_, true);
    }
    return *this;
}

Recordset::~Recordset() {
    Close();
}

void Recordset::Close() {
    sqlite3_finalize(std::exchange(statement_, nullptr));
    connessione_.reset();
    campi_.clear();
    fine_ = true;
}

void Recordset::MoveFirst() {
    if (statement_ == nullptr)
        throw Errore_DB(QStringLiteral("The recordset isn't open."));
    fine_ = true;
    sqlite3_reset(statement_);
    fine_ = !connessione_->Passo(statement_);
}

void Recordset::MoveNext() {
    if (fine_)
        throw Errore_DB(QStringLiteral("No current record."));
    fine_ = true;
    fine_ = !connessione_->Passo(statement_);
}

int Recordset::Count() const {
    return static_cast<int>(campi_.size());
}

QStringList Recordset::Campi() const {
    return campi_;
}

int Recordset::Posizione(QStringView nome) const {
    for (int i = 0; i < campi_.size(); ++i)
        if (campi_[i].size() == nome.size() && nome.compare(campi_[i], Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

Valore Recordset::Campo(QStringView nome) const {
    const int indice = Posizione(nome);
    if (indice < 0)
        throw Errore_DB(QStringLiteral("Item not found in this collection: %1").arg(nome));
    return Campo(indice);
}

Valore Recordset::Campo(int indice) const {
    if (fine_)
        throw Errore_DB(QStringLiteral("No current record."));
    if (indice < 0 || indice >= campi_.size())
        throw Errore_DB(QStringLiteral("Item not found in this collection: %1").arg(indice));
    switch (sqlite3_column_type(statement_, indice)) {
        case SQLITE_NULL:
            return Valore();
        case SQLITE_INTEGER:
            return Valore(static_cast<qint64>(sqlite3_column_int64(statement_, indice)));
        case SQLITE_FLOAT:
            return Valore(sqlite3_column_double(statement_, indice));
        case SQLITE_BLOB: {
            const auto* byte = static_cast<const char*>(sqlite3_column_blob(statement_, indice));
            return Valore::Da_Byte(QByteArray(byte, sqlite3_column_bytes(statement_, indice)));
        }
        default: {
            const auto* testo = reinterpret_cast<const char*>(sqlite3_column_text(statement_, indice));
            return Valore::Da_Testo(QByteArrayView(testo, sqlite3_column_bytes(statement_, indice)));
        }
    }
}

Statement::Statement(std::shared_ptr<Connessione> connessione, sqlite3_stmt* statement)
    : connessione_(std::move(connessione)), statement_(statement) {}

Statement::Statement(Statement&& altro) noexcept
    : connessione_(std::move(altro.connessione_)), statement_(std::exchange(altro.statement_, nullptr)) {}

Statement::~Statement() {
    sqlite3_finalize(statement_);
}

void Statement::Esegui(const std::vector<Valore>& valori) {
    if (static_cast<int>(valori.size()) != sqlite3_bind_parameter_count(statement_))
        throw Errore_DB(QStringLiteral("Too few or too many parameters."));
    sqlite3_reset(statement_);
    for (int i = 0; i < static_cast<int>(valori.size()); ++i) {
        const int codice = Lega(statement_, i + 1, valori[static_cast<size_t>(i)]);
        if (codice != SQLITE_OK)
            throw connessione_->Errore(codice);
    }
    while (connessione_->Passo(statement_)) {  // some settings of the engine answer with their value
    }
    sqlite3_reset(statement_);
}
