#include "ui/skin/SkinnedDialog.h"

#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/skin/StatusTexts.h"
#include "ui/skin/WindowFrame.h"
#include "ui/widgets/KeyHint.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TitleBar.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QColor DialogGround(233, 233, 233);
constexpr int PlainTitleHeight = 32;

} // namespace

SkinnedDialog::SkinnedDialog(QWidget *owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , XBtn_Sys_Close(new SkinButton(u"XBtn_Sys_Close"_s, tr("Close"), this))
    , ImgTitleBar(new TitleBar(this))
{
    QPalette colors = palette();
    colors.setColor(QPalette::Window, DialogGround);
    colors.setColor(QPalette::Button, DialogGround);
    colors.setColor(QPalette::Highlight, QColor(62, 84, 122));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colors);
    // The close button is for the mouse; the keyboard has Escape.
    XBtn_Sys_Close->setFocusPolicy(Qt::NoFocus);
    Public_Function::ShowKey(XBtn_Sys_Close, u"Esc"_s);
    connect(XBtn_Sys_Close, &SkinButton::clicked, this, &SkinnedDialog::reject);
}

int SkinnedDialog::TitleHeight() const
{
    const QSize title = SkinLibrary().BitmapSize(u"DIALOG_TITLE"_s);
    return title.isEmpty() ? PlainTitleHeight : title.height();
}

void SkinnedDialog::SkinDialog(const QString &title)
{
    setWindowTitle(title);
    setFixedSize(size());
    const QScreen *shownOn = parentWidget() ? parentWidget()->screen() : screen();
    move(shownOn->geometry().center() - rect().center());

    const int titleHeight = TitleHeight();
    ImgTitleBar->setGeometry(0, 0, width(), titleHeight);
    XBtn_Sys_Close->SetButton(u"DLG_BTN_CLOSE"_s, SkinLibrary());
    XBtn_Sys_Close->move(width() - XBtn_Sys_Close->width() - 10,
                         (titleHeight - XBtn_Sys_Close->height()) / 2);
    XBtn_Sys_Close->raise();
}

void SkinnedDialog::SkinOkCancel(SkinButton *ok, SkinButton *cancel, int layout)
{
    const SkinLibrary library;
    ok->SetButton(u"BTN_OK"_s, library);
    if (layout == 1) {
        ok->move(width() - 120, ok->y());
        return;
    }
    cancel->SetButton(u"BTN_CANCEL"_s, library);
    const int gap = (width() - 2 * ok->width()) / 3;
    ok->move(gap, ok->y());
    cancel->move(2 * gap + ok->width(), cancel->y());
}

void SkinnedDialog::PaintFrame(QPainter &painter) const
{
    const SkinLibrary library;
    const qreal ratio = devicePixelRatioF();
    const int titleHeight = TitleHeight();
    const QPixmap bar = library.Bitmap(u"DIALOG_TITLE"_s, ratio);
    if (bar.isNull()) {
        painter.fillRect(0, 0, width(), titleHeight, Public_Function::PlainGround);
    } else {
        // The ends of the bar hold its corners; only its middle is stretched, which is the same all along.
        const qreal end = 2 * ratio;
        const qreal h = bar.height();
        const QRectF middle(bar.width() / 2 - 1, 0, 2, h);
        painter.drawPixmap(QRectF(1, 0, width() - 2, titleHeight), bar, middle);
        painter.drawPixmap(QRectF(0, 0, 2, titleHeight), bar, QRectF(0, 0, end, h));
        painter.drawPixmap(QRectF(width() - 2, 0, 2, titleHeight), bar, QRectF(bar.width() - end, 0, end, h));
    }
    const auto edge = [&](const QString &name, const QRect &place) {
        const QPixmap picture = library.Bitmap(name, ratio);
        if (picture.isNull())
            painter.fillRect(place, QColor(141, 148, 167));
        else
            painter.drawPixmap(place, picture);
    };
    const auto sized = [&](const QString &name) {
        const QSize known = library.BitmapSize(name);
        return known.isEmpty() ? QSize(1, 1) : known;
    };
    const QSize left = sized(u"EDGE_LEFT"_s);
    const QSize right = sized(u"EDGE_RIGHT"_s);
    const QSize bottom = sized(u"EDGE_BOTTOM"_s);
    const QSize leftDown = sized(u"EDGE_LEFTDOWN"_s);
    const QSize rightDown = sized(u"EDGE_RIGHTDOWN"_s);
    const int below = height() - titleHeight;
    edge(u"EDGE_LEFT"_s, QRect(0, titleHeight, left.width(), below));
    edge(u"EDGE_RIGHT"_s, QRect(width() - right.width(), titleHeight, right.width(), below));
    edge(u"EDGE_BOTTOM"_s, QRect(0, height() - bottom.height(), width(), bottom.height()));
    edge(u"EDGE_LEFTDOWN"_s, QRect(QPoint(0, height() - leftDown.height()), leftDown));
    edge(u"EDGE_RIGHTDOWN"_s,
         QRect(QPoint(width() - rightDown.width(), height() - rightDown.height()), rightDown));

    painter.setFont(Public_Function::InterfaceFont(13, true));
    painter.setPen(Qt::white);
    const int top = Public_Function::ScreenMode() == 1 ? 6 : 8;
    Public_Function::PrintScaledText(painter, QPoint(30, top), windowTitle());
}

void SkinnedDialog::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), DialogGround);
    PaintFrame(painter);
}

void SkinnedDialog::keyPressEvent(QKeyEvent *event)
{
    if (Public_Function::IsCloseKey(event)) {
        reject();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (m_defaultButton && m_defaultButton->isEnabled())
            m_defaultButton->click();
        return;
    }
    QDialog::keyPressEvent(event);
}
