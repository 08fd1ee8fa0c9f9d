#include "ui/shell/DlgHelp.h"

#include "ui/skin/DialogStyle.h"
#include "ui/skin/Fonts.h"

#include <QListWidget>
#include <QScreen>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextList>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int HelpMargin = 14;
constexpr int ContentsWidth = 210;

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
    , m_contents(new QListWidget(this))
    , m_page(new QTextBrowser(this))
{
    setObjectName(u"DlgHelp"_s);
    const QSize available = screen()->geometry().size();
    resize(qMin(860, available.width() - 60), qMin(620, available.height() - 60));

    const int top = TitleHeight() + HelpMargin;
    const int contentHeight = height() - top - HelpMargin;
    m_contents->setGeometry(HelpMargin, top, ContentsWidth, contentHeight);
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
        m_contents->setCurrentRow(static_cast<int>(m_book.IndexOf(link.toString())));
    });
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
}
