#include "ui/drills/OptionColumn.h"

#include "ui/skin/DialogStyle.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

OptionColumn::OptionColumn(const QString &title, const QString &name, const QStringList &texts,
                           QWidget *parent)
    : QGroupBox(title, parent)
{
    auto *column = new QVBoxLayout(this);
    auto *group = new QButtonGroup(this);
    for (const QString &text : texts) {
        auto *option = new QRadioButton(text, this);
        option->setObjectName(name + QString::number(m_options.size()));
        group->addButton(option);
        column->addWidget(option);
        m_options << option;
    }
    Public_Function::TabToChosen(m_options);
    Public_Function::StyleDialogGroup(this);
}

void OptionColumn::Choose(int index)
{
    QButtonGroup *group = m_options.first()->group();
    group->setExclusive(false);
    for (int option = 0; option < m_options.size(); ++option)
        m_options[option]->setChecked(option == index);
    group->setExclusive(true);
}

int OptionColumn::Chosen() const
{
    for (int option = 0; option < m_options.size(); ++option) {
        if (m_options[option]->isChecked())
            return option;
    }
    return -1;
}

QList<QWidget *> OptionColumn::Options() const
{
    return {m_options.cbegin(), m_options.cend()};
}

void OptionColumn::FocusChosen()
{
    m_options[qMax(0, Chosen())]->setFocus();
}

OptionColumn *MakeSoundOptions(QWidget *parent)
{
    return new OptionColumn(u"Sound Effect"_s, u"opnSetting"_s,
                            {u"No &Knock Sound"_s, u"&Normal"_s, u"&Music"_s}, parent);
}
