#pragma once

#include <QHash>
#include <QString>
#include <deque>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

/// A failed access to a keyed collection: unknown key or position, or a key that is there already.
class Errore_Collezione : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Records in order of insertion, reached by key (exact case) or by position from 1. A record with an empty
/// key is reached by position only. Adding and removing at either end take the same time whatever the size.
template <class T>
class Collezione {
    struct Voce {
        QString key;
        std::shared_ptr<T> record;
    };

  public:
    /// Appends a record under `key`, or without a key when it is "". A key that is there already fails.
    T& Inserisci(const QString& key, std::shared_ptr<T> record) {
        if (!key.isEmpty() && indice_.contains(key))
            throw Errore_Collezione("This key is already associated with an element of this collection: " +
                                    key.toStdString());
        voci_.push_back({key, std::move(record)});
        if (!key.isEmpty())
            indice_.insert(key, primo_ + Count() - 1);
        return *voci_.back().record;
    }

    T& Item(const QString& key) const { return *voci_[Posizione(key)].record; }
    T& Item(qsizetype posizione) const { return *voci_[Controlla(posizione)].record; }
    bool Contiene(const QString& key) const { return indice_.contains(key); }
    /// Position from 1 of the record under a key; 0 when there is none.
    qsizetype Posizione_Di(const QString& key) const {
        const auto it = indice_.constFind(key);
        return it == indice_.constEnd() ? 0 : *it - primo_ + 1;
    }
    qsizetype Count() const { return static_cast<qsizetype>(voci_.size()); }

    void Remove(const QString& key) { Togli(Posizione(key)); }
    void Remove(qsizetype posizione) { Togli(Controlla(posizione)); }
    void Svuota() {
        voci_.clear();
        indice_.clear();
        primo_ = 0;
    }
    /// Prepares for n records in all.
    void Riserva(size_t n) { indice_.reserve(static_cast<qsizetype>(n)); }

    class Iteratore {
      public:
        explicit Iteratore(typename std::deque<Voce>::const_iterator it) : it_(it) {}
        T& operator*() const { return *it_->record; }
        Iteratore& operator++() {
            ++it_;
            return *this;
        }
        bool operator!=(const Iteratore& altro) const { return it_ != altro.it_; }

      private:
        typename std::deque<Voce>::const_iterator it_;
    };
    Iteratore begin() const { return Iteratore(voci_.begin()); }
    Iteratore end() const { return Iteratore(voci_.end()); }

  private:
    size_t Posizione(const QString& key) const {
        const auto it = indice_.constFind(key);
        if (it == indice_.constEnd())
            throw Errore_Collezione("Element not found: " + key.toStdString());
        return static_cast<size_t>(*it - primo_);
    }
    size_t Controlla(qsizetype posizione) const {
        if (posizione < 1 || posizione > Count())
            throw Errore_Collezione("Subscript out of range: " + std::to_string(posizione));
        return static_cast<size_t>(posizione - 1);
    }
    void Togli(size_t i) {
        if (!voci_[i].key.isEmpty())
            indice_.remove(voci_[i].key);
        // The shorter side closes the gap.
        if (i < voci_.size() / 2) {
            Sposta(0, i, 1);
            ++primo_;
        } else {
            Sposta(i + 1, voci_.size(), -1);
        }
        voci_.erase(voci_.begin() + static_cast<std::ptrdiff_t>(i));
    }
    void Sposta(size_t da, size_t fino, qsizetype passo) {
        for (size_t i = da; i < fino; ++i)
            if (!voci_[i].key.isEmpty())
                indice_[voci_[i].key] += passo;
    }

    std::deque<Voce> voci_;
    /// Running number of each key's record; the first record of `voci_` bears `primo_`.
    QHash<QString, qsizetype> indice_;
    qsizetype primo_ = 0;
};

/// Records that know their key, in order of insertion. `Item` and `Remove` fail with `Errore_Collezione` on
/// an unknown key.
template <class Record>
class Collection_Record {
  public:
    /// A new record under the key, without one when it is "". A key that is there already fails.
    Record& Add(const QString& key) {
        Record& record = record_.Inserisci(key, std::make_shared<Record>());
        record.Key = key;
        return record;
    }
    Record& Item(const QString& key) const { return record_.Item(key); }
    Record& Item(qsizetype posizione) const { return record_.Item(posizione); }
    qsizetype Count() const { return record_.Count(); }
    void Remove(const QString& key) { record_.Remove(key); }
    void Remove(qsizetype posizione) { record_.Remove(posizione); }
    bool Esiste(const QString& key) const { return record_.Contiene(key); }
    auto begin() const { return record_.begin(); }
    auto end() const { return record_.end(); }

  private:
    Collezione<Record> record_;
};
