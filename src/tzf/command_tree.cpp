#include <QJsonArray>
#include <QJsonObject>

#include "core/base/testo.h"
#include "core/parts_tables/distinta.h"
#include "tzf/command.h"
#include "tzf/console_ports.h"
#include "tzf/tool_error.h"

namespace {

const QString SI = QStringLiteral("SI");

QList<QCommandLineOption> filterOptions() {
    return {
        {QStringLiteral("lingua"), QStringLiteral("Number of the language; the catalogue's own without it."),
         QStringLiteral("N")},
        {QStringLiteral("mercato"), QStringLiteral("Number of the market; the catalogue's own without it."),
         QStringLiteral("N")},
        {QStringLiteral("gruppo"), QStringLiteral("Groups of the user, as /a/b/ (\"\" for none)."),
         QStringLiteral("LIST")},
        {QStringLiteral("matricola"), QStringLiteral("A machine's serial number."), QStringLiteral("TEXT")}};
}

/// Language, market and group from the options, and what hangs on them.
void applyFilters(const CommandLine& line, Class_Progetto_Aperto& project) {
    const auto choose = [&](const QString& option, QString& current) {
        if (!line.options.isSet(option))
            return;
        current = QString::number(line.number(option, 1));
        if (project.DB.Restituisci_Key_Lingua_Mercato(current.toInt()).isEmpty())
            throw ToolError(
                QStringLiteral("--%1: the catalogue has no row %2 in Lingue").arg(option, current));
    };
    choose(QStringLiteral("lingua"), project.Lingua);
    choose(QStringLiteral("mercato"), project.Mercato);
    if (line.options.isSet(QStringLiteral("gruppo")))
        project.Gruppo = line.options.value(QStringLiteral("gruppo"));
    project.Carica_Albero();
    QString serial = line.options.value(QStringLiteral("matricola"));
    project.Crea_Albero_Da_Struttura(Apici_Raddoppiati(serial));
    project.Traduzioni.Carica_Testi_Codificati(project.Lingua);
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
    applyFilters(line, catalogue.project);
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

void printPartsJson(const Griglia& grid, const Tag_Griglia& tags,
                    const std::vector<Colonna_Griglia>& columns) {
    QJsonArray column_array, row_array;
    for (const Colonna_Griglia& column : columns)
        column_array.append(QJsonObject{{QStringLiteral("title"), column.Titolo},
                                        {QStringLiteral("kind"), column.Tipo},
                                        {QStringLiteral("size"), column.Size}});
    for (int row = 1; grid.Visible && row < grid.Rows(); ++row) {
        QJsonArray cells, cell_tags;
        for (int column = 0; column < grid.Cols(); ++column) {
            cells.append(grid.TextMatrix(row, column));
            cell_tags.append(tags.At(row, column));
        }
        row_array.append(QJsonObject{{QStringLiteral("cells"), cells}, {QStringLiteral("tags"), cell_tags}});
    }
    print(QJsonDocument(QJsonObject{{QStringLiteral("visible"), grid.Visible},
                                    {QStringLiteral("columns"), column_array},
                                    {QStringLiteral("rows"), row_array}}));
}

/// A cell as the table shows it: its text, or what stands in its place.
QString cellText(const Griglia& grid, const Tag_Griglia& tags, int row, int column) {
    const Cella& cell = grid.At(row, column);
    if (!cell.Text.isEmpty() || cell.Picture.isEmpty())
        return QString(cell.Text).replace(u'\n', u' ').replace(u'\r', QString());
    const QString entry = row > 0 ? Estrai_Token(tags.At(row, column), 2, u"|") : QString();
    const bool file = row > 0 && !tags.At(row, column).startsWith(QStringLiteral("Add_"));
    return u'(' + (file ? entry : cell.Picture.section(u'.', 0, 0)) + u')';
}

void printPartsTable(const Griglia& grid, const Tag_Griglia& tags) {
    if (!grid.Visible) {
        print(QStringLiteral("(nothing to show)"));
        return;
    }
    std::vector<qsizetype> widths(static_cast<size_t>(grid.Cols()));
    for (int row = 0; row < grid.Rows(); ++row)
        for (int column = 0; column < grid.Cols(); ++column)
            widths[static_cast<size_t>(column)] =
                std::max(widths[static_cast<size_t>(column)], cellText(grid, tags, row, column).size());
    for (int row = 0; row < grid.Rows(); ++row) {
        QString text;
        for (int column = 0; column < grid.Cols(); ++column) {
            const QString cell = cellText(grid, tags, row, column);
            const qsizetype width = widths[static_cast<size_t>(column)];
            text += (grid.ColAlignment(column) == Allineamento::Destra ? cell.rightJustified(width)
                                                                       : cell.leftJustified(width)) +
                    QStringLiteral("  ");
        }
        while (text.endsWith(u' '))
            text.chop(1);
        print(text);
    }
}

int parts(const CommandLine& line) {
    OpenCatalogue catalogue(line.arguments.at(0));
    Class_Progetto_Aperto& project = catalogue.project;
    applyFilters(line, project);
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
        printPartsJson(grid, tags, columns);
    else
        printPartsTable(grid, tags);
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
            filterOptions(),
            tree};
}

Command partsCommand() {
    return {QStringLiteral("parts"),
            {QStringLiteral("PACKAGE"), QStringLiteral("PRODUCT")},
            QStringLiteral("prints the parts list of a product as the viewer shows it"),
            QStringLiteral("Prints the parts list of a product, given by its node key."),
            true,
            filterOptions(),
            parts};
}
