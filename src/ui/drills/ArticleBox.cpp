#include "ui/drills/ArticleBox.h"

#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/TypingLine.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

class ArticleBoxAccess final : public QAccessibleWidget
{
public:
    explicit ArticleBoxAccess(ArticleBox *box)
        : QAccessibleWidget(box, QAccessible::StaticText)
        , m_box(box)
    {
    }

    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Value:
            return m_box->Text();
        case QAccessible::Description: // the one that screen readers are told of this role
            return (m_box->Text() + u'\n' + m_box->NextText()).trimmed();
        default:
            return QAccessibleWidget::text(kind);
        }
    }

private:
    ArticleBox *m_box;
};

QAccessibleInterface *MakeArticleBoxAccess(const QString &, QObject *object)
{
    auto *box = qobject_cast<ArticleBox *>(object);
    return box ? new ArticleBoxAccess(box) : nullptr;
}

} // namespace

ArticleBox::ArticleBox(const QString &objectName, const QString &accessibleName, const QRect &place, int rows,
                       const QFont &font, QWidget *parent)
    : QWidget(parent)
    , m_paper(SkinLibrary().Color(u"panel.textBox"_s, Qt::white))
{
    static const bool installed = (QAccessible::installFactory(MakeArticleBoxAccess), true);
    Q_UNUSED(installed)
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(place);
    const int rowHeight = place.height() / rows;
    const int top = (place.height() - rows * rowHeight) / 2;
    for (int row = 0; row < rows; ++row) {
        auto *line = new TypingLine(objectName + u"Row"_s + QString::number(row), accessibleName, this);
        line->setFont(font);
        line->setGeometry(0, top + row * rowHeight, place.width(), rowHeight);
        m_rows.push_back(line);
    }
}

QString ArticleBox::Text() const
{
    QStringList lines;
    for (const TypingLine *row : m_rows)
        lines += row->Text();
    return lines.join(u'\n');
}

QString ArticleBox::NextText() const
{
    for (const TypingLine *row : m_rows) {
        if (row->Mark() < 0)
            continue;
        const std::u32string text = row->Text().toStdU32String();
        const QString next = QString::fromUcs4(&text[static_cast<std::size_t>(row->Mark())], 1);
        return next == u" "_s ? tr("Next: space") : tr("Next: %1").arg(next);
    }
    return {};
}

void ArticleBox::paintEvent(QPaintEvent *event)
{
    QPainter(this).fillRect(event->rect(), m_paper);
}
