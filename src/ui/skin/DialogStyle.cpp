#include "ui/skin/DialogStyle.h"

#include "ui/skin/Fonts.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

// The border's growth with the focus is taken from the padding, so that the content stays where it is.
QString BoxStyle(const QColor &background)
{
    return u"%2 { background: %1; color: rgb(40, 46, 58); border: 1px solid rgb(141, 148, 167);"
           " border-radius: 4px; padding: 2px; outline: none;"
           " selection-background-color: rgb(62, 84, 122); selection-color: white; }"
           "%2:focus { border: 2px solid rgb(62, 84, 122); padding: 1px; }"_s.arg(background.name());
}

const QString &ScrollBarStyle()
{
    static const QString style =
        u"QScrollBar:vertical { background: transparent; width: 12px; margin: 2px; }"
        "QScrollBar::handle:vertical { background: rgb(190, 197, 212); border-radius: 4px;"
        " min-height: 24px; }"
        "QScrollBar::handle:vertical:hover { background: rgb(132, 148, 176); }"
        "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
        "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }"_s;
    return style;
}

} // namespace

void Public_Function::StyleDialogList(QListWidget *list, const QColor &background)
{
    list->setFont(InterfaceFont(10));
    list->setTextElideMode(Qt::ElideRight);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setStyleSheet(BoxStyle(background).replace("%2"_L1, "QListWidget"_L1) +
                        u"QListWidget::item { padding: 4px 6px; border-radius: 3px; color: rgb(40, 46, 58); }"
                        "QListWidget::item:hover { background: rgba(62, 84, 122, 22); }"
                        "QListWidget::item:selected { background: rgb(62, 84, 122); color: white; }"
                        "QListWidget::item:selected:!active { background: rgb(112, 128, 156); }"_s +
                        ScrollBarStyle());
}

void Public_Function::StyleDialogBox(QLineEdit *box)
{
    box->setFont(InterfaceFont(10));
    box->setStyleSheet(BoxStyle(Qt::white).replace("%2"_L1, "QLineEdit"_L1));
}

void Public_Function::StyleDialogPage(QAbstractScrollArea *page)
{
    page->setStyleSheet(BoxStyle(Qt::white).replace("%2"_L1, "QTextEdit"_L1) + ScrollBarStyle());
}

void Public_Function::StyleDialogGroup(QGroupBox *group)
{
    group->setFont(Public_Function::InterfaceFont(10));
    // Drawn by the style sheet from borders and gradients, so that the dots are round and sharp at every
    // ratio.
    group->setStyleSheet(
        u"QGroupBox { border: 1px solid rgb(141, 148, 167); border-radius: 6px; margin-top: 9px;"
        " padding-top: 6px; background: rgb(233, 233, 233); color: rgb(40, 46, 58); }"
        "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px;"
        " background: rgb(233, 233, 233); }"
        "QRadioButton { color: rgb(40, 46, 58); spacing: 8px; padding: 2px 4px;"
        " border: 1px solid transparent; border-radius: 4px; outline: none; }"
        "QRadioButton:focus { border-color: rgb(255, 164, 84); }"
        "QRadioButton::indicator { width: 12px; height: 12px; border: 1px solid rgb(120, 128, 148);"
        " border-radius: 7px; background: white; }"
        "QRadioButton::indicator:hover { border-color: rgb(62, 84, 122); }"
        "QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5,"
        " fx: 0.5, fy: 0.5, stop: 0 rgb(62, 84, 122), stop: 0.5 rgb(62, 84, 122), stop: 0.56 white,"
        " stop: 1 white); border-color: rgb(62, 84, 122); }"_s);
}
