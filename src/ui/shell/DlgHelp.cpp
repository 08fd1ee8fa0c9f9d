#include "ui/shell/DlgHelp.h"

#include "ui/skin/DialogStyle.h"
#include "ui/skin/Fonts.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextList>
#include <QUrl>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int HelpMargin = 14;
constexpr int ContentsWidth = 210;
constexpr int SearchHeight = 30;

/// Gives a page that came from Markdown, which has no room between its lines, the look of a book's.
void SetPageInType(QTextDocument &page)
{
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat shape = block.blockFormat();
        const bool heading = shape.headingLevel() > 0;
        shape.setLineHeight(122, QTextBlockFormat::ProportionalHeight);
        shape.setTopMargin(heading && block.position() > 0 ? 14 : 0);
        shape.setBottomMargin(block.textList() ? 5 : 9);
        cursor.setBlockFormat(shape);
        if (heading) {
            QTextCharFormat letters;
            letters.setFont(Public_Function::InterfaceFont(shape.headingLevel() == 1 ? 17 : 13, true));
            letters.setForeground(QColor(62, 84, 122));
            cursor.select(QTextCursor::BlockUnderCursor);
            cursor.mergeCharFormat(letters);
        }
    }
}

} // namespace

DlgHelp::DlgHelp(const HelpBook &book, const QString &pageName, QWidget *owner)
    : SkinnedDialog(owner)
    , m_book(book)
    , m_search(new QLineEdit(this))
    , m_contents(new QListWidget(this))
    , m_page(new QTextBrowser(this))
{
    setObjectName(u"DlgHelp"_s);
    const QSize available = screen()->geometry().size();
    resize(qMin(860, available.width() - 60), qMin(620, available.height() - 60));

    const int top = TitleHeight() + HelpMargin;
    const int contentHeight = height() - top - HelpMargin;
    m_search->setGeometry(HelpMargin, top, ContentsWidth, SearchHeight);
    m_search->setObjectName(u"txtHelpSearch"_s);
    m_search->setAccessibleName(tr("Search the help"));
    m_search->setPlaceholderText(tr("Search (Ctrl+F)"));
    m_search->setClearButtonEnabled(true);
    Public_Function::StyleDialogBox(m_search);
    m_contents->setGeometry(HelpMargin, top + SearchHeight + 8, ContentsWidth,
                            contentHeight - SearchHeight - 8);
    m_contents->setObjectName(u"lstHelpPages"_s);
    m_contents->setAccessibleName(tr("Help pages"));
    Public_Function::StyleDialogList(m_contents);
    const int pageLeft = HelpMargin + ContentsWidth + 10;
    m_page->setGeometry(pageLeft, top, width() - pageLeft - HelpMargin, contentHeight);
    m_page->setObjectName(u"txtHelpPage"_s);
    m_page->setAccessibleName(tr("Help page"));
    m_page->setFont(Public_Function::InterfaceFont(11));
    Public_Function::StyleDialogPage(m_page);
    m_page->setOpenLinks(false);
    m_page->document()->setDocumentMargin(18);
    QPalette pageColors = m_page->palette();
    pageColors.setColor(QPalette::Text, QColor(40, 46, 58));
    pageColors.setColor(QPalette::Link, QColor(30, 88, 160));
    m_page->setPalette(pageColors);

    for (const HelpBook::Page &page : m_book.Pages())
        m_contents->addItem(page.title);
    connect(m_contents, &QListWidget::currentRowChanged, this, &DlgHelp::ShowPage);
    connect(m_page, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
        m_search->clear();
        m_contents->setCurrentRow(static_cast<int>(m_book.IndexOf(link.toString())));
    });
    connect(m_search, &QLineEdit::textChanged, this, &DlgHelp::Search);
    connect(m_search, &QLineEdit::returnPressed, m_page, qOverload<>(&QWidget::setFocus));
    setTabOrder(m_search, m_contents);
    setTabOrder(m_contents, m_page);
    SkinDialog(tr("Quorvex Help"));
    m_contents->setCurrentRow(static_cast<int>(m_book.IndexOf(pageName)));
    m_page->setFocus();
}

void DlgHelp::ShowPage(qsizetype index)
{
    if (index < 0 || index >= m_book.Pages().size())
        return;
    m_page->setMarkdown(m_book.Pages()[index].text);
    SetPageInType(*m_page->document());
    MarkFound();
}

QStringList DlgHelp::SearchedWords() const
{
    return m_search->text().split(u' ', Qt::SkipEmptyParts);
}

void DlgHelp::Search()
{
    const QStringList words = SearchedWords();
    int first = -1;
    for (int row = 0; row < m_contents->count(); ++row) {
        const HelpBook::Page &page = m_book.Pages()[row];
        const bool found = std::all_of(words.cbegin(), words.cend(), [&page](const QString &word) {
            return page.title.contains(word, Qt::CaseInsensitive) ||
                   page.text.contains(word, Qt::CaseInsensitive);
        });
        m_contents->setRowHidden(row, !found);
        if (found && first < 0)
            first = row;
    }
    m_search->setAccessibleDescription(first < 0 ? tr("Nothing found") : QString());
    if (first >= 0 && m_contents->isRowHidden(m_contents->currentRow()))
        m_contents->setCurrentRow(first);
    else
        MarkFound();
}

/// Marks the searched words on the page and brings the first into sight.
void DlgHelp::MarkFound()
{
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString &word : SearchedWords()) {
        QTextCursor found(m_page->document());
        while (!(found = m_page->document()->find(word, found)).isNull()) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = found;
            mark.format.setBackground(QColor(255, 221, 178));
            marks += mark;
        }
    }
    m_page->setExtraSelections(marks);
    const auto first = std::min_element(marks.cbegin(), marks.cend(), [](const auto &one, const auto &other) {
        return one.cursor.position() < other.cursor.position();
    });
    if (first == marks.cend())
        return;
    QTextCursor place = first->cursor;
    place.clearSelection();
    m_page->setTextCursor(place);
}

void DlgHelp::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Find)) {
        m_search->setFocus();
        m_search->selectAll();
    } else if (event->key() == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->clear();
    } else {
        SkinnedDialog::keyPressEvent(event);
    }
}
