#pragma once

#include <QWidget>

/// What the dictionary says about a word, in one line: the word, its phonetic symbol and its explanation. An
/// explanation that is too long is cut off; the tooltip has all of it.
class ExplanationPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit ExplanationPanel(QWidget *parent);

    /// In points at 96 dots per inch.
    void SetTextSize(qreal points);
    /// A phonetic symbol that is not empty is put between slashes.
    void SetTexts(const QString &word, const QString &phonetic, const QString &explanation);
    void Clear();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_word;
    QString m_phonetic; ///< with its slashes
    QString m_explanation;
    QFont m_phoneticFont;
};
