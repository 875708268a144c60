#include <QJsonArray>
#include <QJsonObject>

#include "core/base/testo.h"
#include "core/parts_tables/distinta.h"
#include "tzf/commands/command.h"
#include "tzf/commands/console_ports.h"
#include "tzf/commands/filter_options.h"
#include "tzf/commands/grid_output.h"
#include "tzf/tool_error.h"

namespace {

const QString SI = QStringLiteral("SI");

QList<QCommandLineOption> treeOptions() {
    return filterOptions() +
           QList<QCommandLineOption>{{QStringLiteral("matricola"),
                                      QStringLiteral("A machine's serial number."), QStringLiteral("TEXT")}};
}

/// The tree as it stands after opening, or after a search for the serial number of the options.
void showTree(const CommandLine& line, Class_Progetto_Aperto& project) {
    applyFilters(line, project);
    project.Carica_Albero();
    QString serial = line.options.value(QStringLiteral("matricola"));
    project.Crea_Albero_Da_Struttura(Apici_Raddoppiati(serial));
    if (line.options.isSet(QStringLiteral("matricola")))
        return;

    // What opening a catalogue does further: all nodes opened, then the home node clicked.
    const auto key = [&](const char* name) { return project.DB.System_Leggi_Key(QString::fromLatin1(name)); };
    if (key("IMPOSTAZIONE_ESPANDI_ALBERO") == SI)
        project.Tree1.Espandi_Albero(true);
    const QString home = key("IMPOSTAZIONE_NODO_HOMEPAGE");
    if (Nodo_Visibile* node = home == u"R" ? nullptr : project.Tree1.Nodo(home)) {
        project.Tree1.Seleziona(node);
        if (key("IMPOSTAZIONE_ESPANDI_NODO_ALBERO") == SI)
            node->Expanded = true;
    }
}

int tree(const CommandLine& line) {
    OpenCatalogue catalogue(line.arguments.at(0));
    showTree(line, catalogue.project);
    const Albero_Visibile& tree = catalogue.project.Tree1;
    QJsonArray array;
    if (!line.json())
        print(tree.Titolo);
    for (const Nodo_Visibile* node : tree.In_Ordine()) {
        const bool selected = node == tree.SelectedItem();
        if (line.json()) {
            array.append(QJsonObject{{QStringLiteral("key"), node->Key},
                                     {QStringLiteral("parent"), node->Parent ? node->Parent->Key : QString()},
                                     {QStringLiteral("text"), node->Text},
                                     {QStringLiteral("image"), node->Image},
                                     {QStringLiteral("bold"), node->Bold},
                                     {QStringLiteral("expanded"), node->Expanded},
                                     {QStringLiteral("selected"), selected}});
            continue;
        }
        QString indent;
        for (const Nodo_Visibile* parent = node->Parent; parent != nullptr; parent = parent->Parent)
            indent += QStringLiteral("  ");
        const QString sign = node->Figli.empty()
                                 ? QStringLiteral(" ")
                                 : (node->Expanded ? QStringLiteral("-") : QStringLiteral("+"));
        print(QStringLiteral("%1%2 %3%4%3  [%5]%6")
                  .arg(indent, sign, node->Bold ? QStringLiteral("*") : QString(), node->Text, node->Key,
                       selected ? QStringLiteral("  <") : QString()));
    }
    if (line.json())
        print(QJsonDocument(array));
    return EXIT_DONE;
}

int parts(const CommandLine& line) {
    OpenCatalogue catalogue(line.arguments.at(0));
    Class_Progetto_Aperto& project = catalogue.project;
    showTree(line, project);
    const QString product = line.arguments.at(1);
    if (!project.Albero.Esiste(product))
        throw ToolError(QStringLiteral("the catalogue has no node %1").arg(product));
    Griglia grid;
    grid.Width = 9000;
    Tag_Griglia tags(1000);
    // A publisher looks into a catalogue without an account.
    const Contesto_Distinta context{project.DB,          project.Traduzioni,
                                    project.Numeri_,     project.Filtri_Correnti(),
                                    [] { return true; }, [] {}};
    const std::vector<Colonna_Griglia> columns =
        Visualizza_Griglia_Distinta_Prodotto(context, product, {}, true, grid, tags, true);
    if (line.json())
        print(QJsonDocument(gridJson(grid, tags, columns)));
    else
        printGrid(grid, tags);
    return EXIT_DONE;
}

}  // namespace

Command treeCommand() {
    return {QStringLiteral("tree"),
            {QStringLiteral("PACKAGE")},
            QStringLiteral("prints the tree as the viewer shows it"),
            QStringLiteral(
                "Prints the tree as it stands in the viewer when the catalogue has been opened, or with\n"
                "--matricola when the serial number has been looked for. \"-\" is an open node, \"+\" a\n"
                "closed one, \"*\" a bold one, \"<\" the selected one."),
            true,
            treeOptions(),
            tree};
}

Command partsCommand() {
    return {QStringLiteral("parts"),
            {QStringLiteral("PACKAGE"), QStringLiteral("PRODUCT")},
            QStringLiteral("prints the parts list of a product as the viewer shows it"),
            QStringLiteral("Prints the parts list of a product, given by its node key."),
            true,
            treeOptions(),
            parts};
}
