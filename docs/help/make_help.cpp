// make_help GUIDE.md HELP.pdf: sets a guide written in Markdown as an A4 document.

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QTextTableFormat>
#include <cstdio>

namespace {

const QColor ink(0x2f, 0x3e, 0x4e);
const QColor accent(0xb8, 0x57, 0x10);
const QColor rule(0xc8, 0xd0, 0xd8);

QFont font_of_size(qreal points) {
    QFont f;
    f.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Open Sans"), QStringLiteral("DejaVu Sans")});
    f.setPointSizeF(points);
    return f;
}

// The size, colour and spacing of one paragraph; the Markdown reader gives only the structure.
void style_block(const QTextBlock& block) {
    struct Style {
        qreal points, above, below;
    };
    constexpr Style styles[] = {{0, 0, 6}, {20, 0, 10}, {12.5, 13, 4}, {10.5, 10, 4}};
    const int level = qMin(block.blockFormat().headingLevel(), 3);

    QTextCursor cursor(block);
    QTextBlockFormat paragraph = block.blockFormat();
    const bool in_table = cursor.currentTable() != nullptr;
    const bool more_items = block.textList() && block.next().textList() == block.textList();
    paragraph.setTopMargin(styles[level].above);
    paragraph.setBottomMargin(in_table ? 0 : more_items ? 2 : styles[level].below);
    paragraph.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
    cursor.setBlockFormat(paragraph);

    if (level == 0)
        return;
    QTextCharFormat text;
    text.setFont(font_of_size(styles[level].points));
    text.setFontWeight(QFont::DemiBold);
    text.setForeground(level == 1 ? ink : accent);
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.mergeCharFormat(text);
}

void style_table(QTextTable& table) {
    QTextTableFormat format = table.format();
    format.setCellPadding(4);
    format.setCellSpacing(0);
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setTopMargin(4);
    format.setBottomMargin(4);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setHeaderRowCount(1);
    format.setColumnWidthConstraints(
        {QTextLength(QTextLength::PercentageLength, 34), QTextLength(QTextLength::PercentageLength, 66)});
    table.setFormat(format);

    for (int row = 0; row < table.rows(); ++row)
        for (int column = 0; column < table.columns(); ++column) {
            QTextTableCell cell = table.cellAt(row, column);
            QTextTableCellFormat lined = cell.format().toTableCellFormat();
            lined.setBottomBorder(1);
            lined.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            lined.setBottomBorderBrush(row == 0 ? ink : rule);
            cell.setFormat(lined);
        }
}

void style_guide(QTextDocument& guide) {
    for (QTextBlock b = guide.begin(); b.isValid(); b = b.next())
        style_block(b);
    for (QTextFrame* frame : guide.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame))
            style_table(*table);
}

// The page that a place of the laid-out document stands on, from 0.
int page_at(const QTextDocument& guide, qreal y) {
    return int(y / guide.pageSize().height());
}

// A heading at the foot of a page moves to the next one, to the text that it announces.
void keep_headings_with_text(QTextDocument& guide) {
    for (QTextBlock b = guide.begin(); b.next().isValid(); b = b.next()) {
        if (b.blockFormat().headingLevel() == 0)
            continue;
        const auto* layout = guide.documentLayout();
        const int heading_page = page_at(guide, layout->blockBoundingRect(b).top());
        const qreal text_top = layout->blockBoundingRect(b.next()).top();
        const QTextLine first_line = b.next().layout()->lineAt(0);
        const qreal y = text_top + (first_line.isValid() ? first_line.rect().bottom() : 0);
        if (page_at(guide, y) == heading_page)
            continue;
        QTextBlockFormat paragraph = b.blockFormat();
        paragraph.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(b).setBlockFormat(paragraph);
        // Laid out anew as a whole: from the changed paragraph on, the layout would leave some texts out.
        guide.setPageSize(guide.pageSize());
    }
}

bool write_pdf(QTextDocument& guide, const QString& title, QPdfWriter& pdf) {
    pdf.setTitle(title);
    pdf.setCreator(QStringLiteral("Tessarine Viewer"));
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(24, 20, 24, 16),
                                  QPageLayout::Millimeter));

    QPainter painter;
    if (!painter.begin(&pdf))
        return false;

    // Laid out for the device: sizes in points are true, and the rest is scaled from 96 dots per inch.
    guide.documentLayout()->setPaintDevice(&pdf);
    const qreal footer = pdf.logicalDpiY() * 0.3;
    const QSizeF page(pdf.width(), pdf.height() - footer);
    guide.setPageSize(page);
    keep_headings_with_text(guide);

    const int pages = guide.pageCount();
    for (int n = 0; n < pages; ++n) {
        if (n > 0 && !pdf.newPage())
            return false;
        painter.save();
        painter.translate(0, -n * page.height());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(QPointF(0, n * page.height()), page);
        context.palette.setColor(QPalette::Text, ink);
        painter.setClipRect(context.clip);
        guide.documentLayout()->draw(&painter, context);
        painter.restore();

        painter.setFont(font_of_size(8));
        painter.setPen(ink);
        const QRectF line(0, page.height(), page.width(), footer);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, title);
        painter.drawText(line, Qt::AlignRight | Qt::AlignBottom,
                         QStringLiteral("%1 / %2").arg(n + 1).arg(pages));
    }
    return painter.end();
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: make_help GUIDE.md HELP.pdf\n");
        return 2;
    }
    QFile source(arguments[1]);
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "make_help: %s: %s\n", qPrintable(arguments[1]),
                     qPrintable(source.errorString()));
        return 1;
    }

    QPdfWriter pdf(arguments[2]);  // before the guide, whose layout measures with it
    QTextDocument guide;
    guide.setDefaultFont(font_of_size(9.5));
    guide.setDocumentMargin(0);
    guide.setIndentWidth(18);
    guide.setMarkdown(QString::fromUtf8(source.readAll()), QTextDocument::MarkdownDialectGitHub);
    const QString title = guide.begin().text();
    style_guide(guide);
    if (!write_pdf(guide, title, pdf)) {
        std::fprintf(stderr, "make_help: %s can't be written\n", qPrintable(arguments[2]));
        return 1;
    }
    return 0;
}
