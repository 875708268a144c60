#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <stdexcept>

#include "core/base/testo.h"
#include "core/cart/modifica.h"
#include "core/drawing/hotspot.h"
#include "core/users/accesso.h"
#include "tzf/commands/command.h"
#include "tzf/commands/console_ports.h"
#include "tzf/commands/filter_options.h"
#include "tzf/commands/grid_output.h"
#include "tzf/tool_error.h"

namespace {

QString keyOf(const char* name) {
    return QString::fromLatin1(name);
}

/// Carries out the steps of an order, one after the other, as the viewer does without a drawing.
class OrderSteps {
  public:
    explicit OrderSteps(Class_Progetto_Aperto& project)
        : project_(project),
          cart_{project.DB, project.Numeri_, project.Filtri_Correnti(), project.Prodotti_Selezionati} {}

    /// Fails with `ToolError` on a line that is no step.
    void run(const QByteArray& line) {
        QJsonParseError fault;
        const QJsonObject object = QJsonDocument::fromJson(line, &fault).object();
        if (fault.error != QJsonParseError::NoError)
            throw ToolError(fault.errorString());
        const QString kind = object.size() == 1 ? object.keys().first() : QString();
        if (!object.value(kind).isObject())
            throw ToolError(
                keyOf("a step is an object with one of add, hotspot, quantity, note and remove in it"));
        step_ = object.value(kind).toObject();
        // What the viewer shows as a message ends the step and nothing else.
        try {
            run(kind);
        } catch (const ToolError&) {
            throw;
        } catch (const std::exception& error) {
            printError(QString::fromUtf8(error.what()));
        }
    }

  private:
    QString field(const char* name) const {
        const QJsonValue value = step_.value(QLatin1String(name));
        if (!value.isString())
            throw ToolError(QStringLiteral("\"%1\" is missing or isn't a text").arg(QLatin1String(name)));
        return value.toString();
    }

    void run(const QString& kind) {
        const QString product = field("product");
        if (kind == u"add") {
            Senza_Tavola drawing;
            cart_.Aggiungi_Componente_Carrello_Evidenzia_Tavola(drawing, product, field("code"),
                                                                field("reference"));
        } else if (kind == u"hotspot") {
            addHotspot(product, field("name"));
        } else if (kind == u"quantity") {
            if (knownLine(product))
                Modifica_Quantita(cart_, product, field("line"), field("text"));
        } else if (kind == u"note") {
            if (knownLine(product))
                Modifica_Nota(cart_.Selezionati, product, field("line"), field("text"));
        } else if (kind == u"remove") {
            if (knownLine(product))
                Elimina_Riga(cart_.Selezionati, product, field("line"));
        } else {
            throw ToolError(QStringLiteral("\"%1\" is no step").arg(kind));
        }
    }

    /// What the viewer can't be asked to do is told and left out.
    bool knownLine(const QString& product) const {
        if (Cerca_Riga(cart_.Selezionati, product, field("line")) != nullptr)
            return true;
        printError(QStringLiteral("%1 has no line %2").arg(product, field("line")));
        return false;
    }

    /// The node that the viewer shows for a hotspot, "" for one that stands for a component.
    QString linkOf(const QString& product, const QString& name) const {
        const Nodo_Visibile* node = project_.Tree1.Nodo(product);
        const QString link =
            Risolvi_HotSpot(project_.DB, name,
                            {product, project_.Mercato,
                             node == nullptr || node->Parent == nullptr ? QString() : node->Parent->Key});
        return project_.Tree1.Nodo(link) == nullptr ? QString() : link;
    }

    /// Of several components the optional "code" says which one the user picks.
    void addHotspot(const QString& product, const QString& name) {
        if (const QString link = linkOf(product, name); !link.isEmpty()) {
            printError(QStringLiteral("hotspot %1 of %2 is a link to %3; nothing is ordered")
                           .arg(name, product, link));
            return;
        }
        cart_.Aggiungi_Da_Tavola(
            name, product, Key_Da_Nodo(name),
            [&](const QString& reference) -> std::optional<Componente_Scelto> {
                if (step_.contains(keyOf("code")))
                    return Componente_Scelto{field("code"), reference};
                printError(QStringLiteral("%1 has several components; \"code\" picks one").arg(name));
                return std::nullopt;
            });
    }

    Class_Progetto_Aperto& project_;
    Aggiunta_Carrello cart_;
    QJsonObject step_;
};

void runSteps(const QString& path, Class_Progetto_Aperto& project) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
    OrderSteps steps(project);
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine().trimmed();
        if (line.isEmpty())
            continue;
        try {
            steps.run(line);
        } catch (const ToolError& error) {
            throw ToolError(
                QStringLiteral("%1 line %2: %3").arg(path).arg(number).arg(QString::fromUtf8(error.what())));
        }
    }
}

void logIn(const CommandLine& line, Class_Progetto_Aperto& project) {
    const QString user = keyOf("user"), password = keyOf("password");
    if (!line.options.isSet(user)) {
        if (line.options.isSet(password))
            throw UsageError(keyOf("--password wants --user"));
        return;
    }
    Filtri filters = project.Filtri_Correnti();
    if (Accedi(project.DB, line.options.value(user), line.options.value(password), filters) !=
        Esito_Accesso::Riuscito)
        throw ToolError(keyOf("the log-in isn't valid"));
    project.Utente = filters.Utente;
    project.Gruppo = filters.Gruppo;
}

QJsonArray storeJson(const Class_Progetto_Aperto& project) {
    QJsonArray products;
    for (const Class_Prodotti_Selezionati& product : project.Prodotti_Selezionati) {
        QJsonArray lines;
        for (const Class_Elenco& line : product.Collection_Elenco_Selezionati()) {
            // The digits that mean the single, not those of the double behind it.
            QString quantity = project.Numeri_.Testo(line.Quantita);
            quantity.replace(project.Numeri_.Restituisci_Separatore_Decimale(), u'.');
            lines.append(QJsonObject{{keyOf("key"), line.Key},
                                     {keyOf("code"), line.Codice},
                                     {keyOf("quantity"), quantity.toDouble()},
                                     {keyOf("note"), line.Nota},
                                     {keyOf("graphic"), line.Chiave_Grafica},
                                     {keyOf("reference"), line.Riferimento}});
        }
        products.append(QJsonObject{{keyOf("product"), product.Key}, {keyOf("lines"), lines}});
    }
    return products;
}

int order(const CommandLine& line) {
    if (!line.options.isSet(keyOf("lines")))
        throw UsageError(keyOf("--lines is missing; tzf order --help tells more"));
    OpenCatalogue catalogue(line.arguments.at(0));
    Class_Progetto_Aperto& project = catalogue.project;
    logIn(line, project);
    applyFilters(line, project);
    project.Carica_Albero();  // the links lead to what the filters show
    QString serial;
    project.Crea_Albero_Da_Struttura(serial);
    runSteps(line.options.value(keyOf("lines")), project);
    Griglia grid;
    Tag_Griglia tags;
    // A publisher looks into a catalogue without an account.
    const std::vector<Colonna_Griglia> columns = Visualizza_Griglia_Carello_Prodotto(
        project.Carrello([] { return true; }, [] {}), TUTTI_I_PRODOTTI, true, grid, tags);
    if (line.json()) {
        QJsonObject object = gridJson(grid, tags, columns);
        object.insert(keyOf("store"), storeJson(project));
        print(QJsonDocument(object));
    } else {
        printGrid(grid, tags);
    }
    return EXIT_DONE;
}

}  // namespace

Command orderCommand() {
    return {
        QStringLiteral("order"),
        {QStringLiteral("PACKAGE")},
        QStringLiteral("fills a cart by steps and prints the order as the viewer shows it"),
        QStringLiteral(
            "Carries out the steps of a file, one JSON object a line, as the viewer does while no drawing\n"
            "is up, and prints the order with its totals:\n"
            "  {\"add\":{\"product\":KEY,\"code\":CODE,\"reference\":TEXT}}    a row of a parts list\n"
            "  {\"hotspot\":{\"product\":KEY,\"name\":TEXT}}                an object of a drawing; with\n"
            "                                     \"code\" when it has several components;\n"
            "                                     a link is told, and orders nothing\n"
            "  {\"quantity\":{\"product\":KEY,\"line\":KEY,\"text\":TEXT}}   what is typed as the quantity\n"
            "  {\"note\":{\"product\":KEY,\"line\":KEY,\"text\":TEXT}}\n"
            "  {\"remove\":{\"product\":KEY,\"line\":KEY}}\n"
            "The key of a line is code and reference with \"-\" between them."),
        true,
        QList<QCommandLineOption>{
            {QStringLiteral("lines"), QStringLiteral("The file with the steps."), QStringLiteral("FILE")},
            {QStringLiteral("user"), QStringLiteral("Account that orders."), QStringLiteral("LOGIN")},
            {QStringLiteral("password"), QStringLiteral("Its password."), QStringLiteral("TEXT")}} +
            filterOptions(),
        order};
}
