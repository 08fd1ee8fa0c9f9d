#include "ui/skin/DialogStyle.h"

#include "ui/skin/Fonts.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

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

/// The dots are drawn from borders and gradients, so that they are round and sharp at every ratio.
const QString &OptionStyle()
{
    static const QString style =
        u"QRadioButton { color: rgb(40, 46, 58); spacing: 8px; padding: 2px 4px;"
        " border: 1px solid transparent; border-radius: 4px; outline: none; }"
        "QRadioButton:focus { border-color: rgb(62, 84, 122); }"
        "QRadioButton:disabled { color: rgb(140, 146, 158); }"
        "QRadioButton::indicator { width: 12px; height: 12px; border: 1px solid rgb(120, 128, 148);"
        " border-radius: 7px; background: white; }"
        "QRadioButton::indicator:hover { border-color: rgb(62, 84, 122); }"
        "QRadioButton::indicator:disabled { border-color: rgb(185, 191, 203); background: rgb(240, 241, "
        "244); }"
        "QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5,"
        " fx: 0.5, fy: 0.5, stop: 0 rgb(62, 84, 122), stop: 0.5 rgb(62, 84, 122), stop: 0.56 white,"
        " stop: 1 white); border-color: rgb(62, 84, 122); }"
        "QRadioButton::indicator:checked:disabled { background: qradialgradient(cx: 0.5, cy: 0.5,"
        " radius: 0.5, fx: 0.5, fy: 0.5, stop: 0 rgb(170, 178, 194), stop: 0.5 rgb(170, 178, 194),"
        " stop: 0.56 rgb(240, 241, 244), stop: 1 rgb(240, 241, 244)); border-color: rgb(185, 191, 203); }"_s;
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
                        "QListWidget::item:selected:!active { background: rgb(98, 114, 143); }"_s +
                        ScrollBarStyle());
}

void Public_Function::StyleDialogBox(QLineEdit *box)
{
    box->setFont(InterfaceFont(10));
    box->setStyleSheet(BoxStyle(Qt::white).replace("%2"_L1, "QLineEdit"_L1) +
                       u"QLineEdit:disabled { background: rgb(233, 233, 233); color: rgb(150, 156, 168);"
                       " border-color: rgb(190, 196, 208); }"_s);
    // The style would make it half transparent, which is too pale to read.
    box->ensurePolished();
    QPalette colors = box->palette();
    colors.setColor(QPalette::PlaceholderText, QColor(96, 102, 116));
    box->setPalette(colors);
}

void Public_Function::StyleDialogPage(QAbstractScrollArea *page)
{
    page->setStyleSheet(BoxStyle(Qt::white).replace("%2"_L1, "QTextEdit"_L1) + ScrollBarStyle());
}

void Public_Function::StyleDialogGroup(QGroupBox *group)
{
    group->setFont(InterfaceFont(10));
    group->setStyleSheet(
        u"QGroupBox { border: 1px solid rgb(141, 148, 167); border-radius: 6px; margin-top: 9px;"
        " padding-top: 6px; background: rgb(233, 233, 233); color: rgb(40, 46, 58); }"
        "QGroupBox:disabled { border-color: rgb(190, 196, 208); color: rgb(140, 146, 158); }"
        "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px;"
        " background: rgb(233, 233, 233); }"_s +
        OptionStyle());
}

void Public_Function::StyleDialogLabel(QLabel *label, qreal points, bool bold)
{
    label->setFont(InterfaceFont(points, bold));
    label->setStyleSheet(u"QLabel { color: rgb(40, 46, 58); }"
                         "QLabel:disabled { color: rgb(140, 146, 158); }"_s);
}

void Public_Function::StyleDialogOption(QRadioButton *option)
{
    option->setFont(InterfaceFont(10));
    option->setStyleSheet(OptionStyle());
}

void Public_Function::TabToChosen(const QList<QRadioButton *> &options)
{
    for (QRadioButton *option : options) {
        const auto follow = [option](bool chosen) {
            const int others = option->focusPolicy() & ~Qt::TabFocus;
            option->setFocusPolicy(static_cast<Qt::FocusPolicy>(chosen ? others | Qt::TabFocus : others));
        };
        follow(option->isChecked());
        QObject::connect(option, &QRadioButton::toggled, option, follow);
    }
}

void Public_Function::StyleDialogButton(QPushButton *button)
{
    button->setFont(InterfaceFont(10));
    button->setStyleSheet(
        u"QPushButton { background: rgb(246, 247, 250); color: rgb(40, 46, 58); padding: 3px 13px;"
        " border: 1px solid rgb(141, 148, 167); border-radius: 4px; outline: none; }"
        "QPushButton:hover { background: white; border-color: rgb(62, 84, 122); }"
        "QPushButton:pressed { background: rgb(211, 214, 224); }"
        "QPushButton:focus { border: 2px solid rgb(62, 84, 122); padding: 2px 12px; }"
        "QPushButton:disabled { background: rgb(233, 233, 233); color: rgb(150, 156, 168);"
        " border-color: rgb(190, 196, 208); }"_s);
}

void Public_Function::StyleDialogScrollBar(QScrollBar *bar)
{
    bar->setStyleSheet(ScrollBarStyle());
}

QString Public_Function::DialogChoiceStyle()
{
    return BoxStyle(Qt::white).replace("%2"_L1, "QComboBox"_L1) +
           u"QComboBox { padding-left: 6px; combobox-popup: 0; }"
           "QComboBox:focus { padding-left: 5px; }"
           "QComboBox:disabled { background: rgb(233, 233, 233); color: rgb(150, 156, 168);"
           " border-color: rgb(190, 196, 208); }"
           "QComboBox::drop-down { border: none; width: 24px; }"
           "QComboBox::down-arrow { image: none; }"
           "QComboBox QAbstractItemView { background: white; border: 1px solid rgb(141, 148, 167);"
           " padding: 1px; outline: none; }"
           "QComboBox QAbstractItemView::item { padding: 4px 6px; min-height: 16px; border-radius: 3px;"
           " color: rgb(40, 46, 58); }"
           "QComboBox QAbstractItemView::item:selected { background: rgb(62, 84, 122); color: white; }"_s +
           ScrollBarStyle();
}

QString Public_Function::DialogTickStyle()
{
    return u"QCheckBox { color: rgb(40, 46, 58); spacing: 8px; padding: 2px 4px; outline: none;"
           " border: 1px solid transparent; border-radius: 4px; }"
           "QCheckBox:focus { border-color: rgb(62, 84, 122); }"
           "QCheckBox:disabled { color: rgb(140, 146, 158); }"
           "QCheckBox::indicator { width: 13px; height: 13px; border: 1px solid rgb(120, 128, 148);"
           " border-radius: 3px; background: white; }"
           "QCheckBox::indicator:hover { border-color: rgb(62, 84, 122); }"
           "QCheckBox::indicator:checked { background: rgb(62, 84, 122); border-color: rgb(62, 84, 122); }"
           "QCheckBox::indicator:disabled { border-color: rgb(185, 191, 203); background: rgb(240, 241, "
           "244); }"
           "QCheckBox::indicator:checked:disabled { background: rgb(170, 178, 194); }"_s;
}
