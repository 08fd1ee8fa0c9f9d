#include "core/shell/Public_Define.h"
#include "ui/records/TopListView.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/ChoiceBox.h"
#include "ui/widgets/TickBox.h"

#include <QtTest>
#include <QtWidgets>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

double Luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1, the same colour, to 21, black on white.
double Contrast(const QColor &text, const QColor &ground)
{
    const double a = Luminance(text) + 0.05;
    const double b = Luminance(ground) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

constexpr double least = 4.5;

} // namespace

/// That every text can be read on its ground, also by those who see little contrast. What is disabled need
/// not be read.
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(QDir::cleanPath(QStringLiteral(QUORVEX_TEST_DATA "/../../../assets/skin/theme.json")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_theme = QJsonDocument::fromJson(file.readAll()).object();
    }

    void ThemeTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("ground");
        QTest::addColumn<double>("exception"); // the contrast that there is, where less must do
        const auto row = [](const QString &text, const QString &ground, double exception = 0) {
            QTest::addRow("%s on %s", qPrintable(text), qPrintable(ground)) << text << ground << exception;
        };
        for (const auto &state : {u".normal"_s, u".hovered"_s, u".pressed"_s}) {
            for (const auto &style : {u"button.primary"_s, u"button.secondary"_s, u"button.danger"_s,
                                      u"button.menu"_s, u"manage.tab"_s})
                row(style + state + u".text"_s, style + state + u".face"_s);
        }
        const QString fingers = u"little ring middle leftIndex rightIndex thumb"_s;
        for (const QString &finger : fingers.split(u' ')) {
            for (const auto &text : {u"keyboard.text"_s, u"keyboard.quietText"_s, u"keyboard.pressedText"_s})
                row(text, u"finger."_s + finger);
        }
        const QString others = uR"(
keyboard.promptText on keyboard.prompt, runtime.text.key on keyCap.normal.face,
runtime.text.key on keyCap.on.face, tabs.lit.text on tabs.lit.face, tabs.plain.text on tabs.plain.face,
status.caption on panel.plate, runtime.status.text on panel.plate, runtime.status.text on panel.face,
mainMenu.nameColor on mainMenu.plate, mainMenu.mottoColor on mainMenu.plate,
runtime.menu.user on mainMenu.plate, runtime.window.title on background.ground,
runtime.dialog.title on dialog.titleTop, runtime.dialog.title on dialog.titleBottom,
palette.ink on topList.header, palette.ink on topList.row, palette.ink on topList.evenRow,
palette.ink on manage.page, runtime.text.key on panel.textBox, runtime.text.key on palette.accent,
button.windowClose.hovered.text on button.windowClose.hovered.face)"_s;
        for (const QString &pair : others.simplified().split(u", "_s))
            row(pair.section(u" on "_s, 0, 0), pair.section(u" on "_s, 1));
        // These three colours are the product's own: what is typed already steps back, and a mistake is red.
        row(u"runtime.text.typed"_s, u"panel.textBox"_s, 2.1);
        row(u"runtime.text.keyTyped"_s, u"keyCap.normal.face"_s, 1.9);
        row(u"runtime.text.wrong"_s, u"panel.textBox"_s, 3.9);
    }
    void ThemeTexts()
    {
        QFETCH(QString, text);
        QFETCH(QString, ground);
        QFETCH(double, exception);
        const double contrast = Contrast(ThemeColor(text), ThemeColor(ground));
        QVERIFY2(contrast >= (exception > 0 ? exception : least), qPrintable(QString::number(contrast)));
    }

    void Hints()
    {
        QLineEdit box;
        Public_Function::StyleDialogBox(&box);
        box.show();
        const QColor hint = box.palette().color(QPalette::PlaceholderText);
        QVERIFY2(hint.alpha() == 255 && Contrast(hint, Qt::white) >= least, qPrintable(hint.name()));
    }

    void StyleSheets()
    {
        QListWidget list;
        Public_Function::StyleDialogList(&list, QColor(233, 251, 251)); // the list of users
        QLineEdit box;
        Public_Function::StyleDialogBox(&box);
        QGroupBox group;
        Public_Function::StyleDialogGroup(&group);
        QLabel label;
        Public_Function::StyleDialogLabel(&label);
        QRadioButton option;
        Public_Function::StyleDialogOption(&option);
        QPushButton button;
        Public_Function::StyleDialogButton(&button);
        const ChoiceBox choice({}, {}, nullptr);
        const TickBox tick({}, {}, nullptr);
        const TopListView top(nullptr);
        for (const QWidget *widget : std::initializer_list<const QWidget *>{
                 &list, &box, &group, &label, &option, &button, &choice, &tick, &top})
            CheckStyle(widget->styleSheet());
    }

private:
    QColor ThemeColor(QString key) const
    {
        for (;;) {
            QJsonValue value = m_theme;
            const QString group = key.section(u'.', 0, 0);
            if (group == u"runtime"_s) // its keys have dots in them
                value = m_theme[group].toObject()[key.section(u'.', 1)];
            else
                for (const QString &name : key.split(u'.'))
                    value = value.toObject()[name];
            if (!value.toString().startsWith(u'@'))
                return QColor(value.toString());
            key = value.toString().mid(1);
        }
    }

    static std::optional<QColor> Find(const QString &rule, const QString &property)
    {
        const QRegularExpression pattern(u"(?<![-\\w])%1: ?(rgba?\\([^)]*\\)|#\\w+|white)"_s.arg(property));
        const QString value = pattern.match(rule).captured(1);
        if (!value.startsWith("rgb"_L1))
            return value.isEmpty() ? std::nullopt : std::optional(QColor(value));
        const QStringList parts = value.section(u'(', 1).chopped(1).split(u',');
        return QColor(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts.value(3, u"255"_s).toInt());
    }
    /// A state takes what it does not say from the rule without that state.
    void CheckStyle(const QString &sheet)
    {
        QHash<QString, std::pair<QColor, QColor>> known;
        static const QRegularExpression rules(u"([^{}]+)\\{([^}]*)\\}"_s);
        int checked = 0;
        for (const QRegularExpressionMatch &match : rules.globalMatch(sheet)) {
            const QString selector = match.captured(1).trimmed();
            if (selector.contains(":disabled"_L1) || selector.contains("indicator"_L1) ||
                selector.contains("ScrollBar"_L1))
                continue;
            std::pair<QColor, QColor> colors(Qt::black, QColor(233, 233, 233));
            for (QString base = selector; !base.isEmpty(); base.truncate(qMax(0, base.lastIndexOf(u':')))) {
                if (known.contains(base)) {
                    colors = known[base];
                    break;
                }
            }
            colors.first = Find(match.captured(2), u"color"_s).value_or(colors.first);
            const QColor ground = Find(match.captured(2), u"background"_s).value_or(colors.second);
            if (ground.alpha() == 255) // a faint veil changes next to nothing
                colors.second = ground;
            known[selector] = colors;
            QVERIFY2(Contrast(colors.first, colors.second) >= least, qPrintable(match.captured()));
            ++checked;
        }
        QVERIFY(checked > 0);
    }

    QJsonObject m_theme;
};

QTEST_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
