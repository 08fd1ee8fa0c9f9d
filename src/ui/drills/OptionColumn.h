#pragma once

#include <QGroupBox>

class QRadioButton;

/// Options below one another in a frame, one of which is chosen.
class OptionColumn final : public QGroupBox
{
    Q_OBJECT

public:
    /// The options are named `name` and their index.
    OptionColumn(const QString &title, const QString &name, const QStringList &texts, QWidget *parent);

    /// Any other than the index of an option chooses none.
    void Choose(int index);
    /// -1 for none.
    int Chosen() const;
    QList<QWidget *> Options() const;
    void FocusChosen();

private:
    QList<QRadioButton *> m_options;
};

/// What the drills sound like: no sound, key sounds, music keyboard.
OptionColumn *MakeSoundOptions(QWidget *parent);
