#include "core/engine/TypingSession.h"
#include "support/FakeServices.h"
#include "support/SkinnedInstall.h"
#include "ui/speedtest/DlgTestResult.h"
#include "ui/widgets/Chart.h"
#include "ui/widgets/ChartScale.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A finished session with the figures that a case needs.
class Session final : public TypingSession
{
public:
    explicit Session(float speed = 0, float rate = 0)
    {
        m_fLastAveSpeed = speed;
        m_fLastRate = rate;
    }
    void SaveData(const QString &) override {}
    void CheckString(const QString &strInput) override { AddUnit(strInput.toStdU32String()); }
    bool SetNextLine() override { return false; }
    void BackSpace() override {}
    WrongCharacters GetWrong() const override { return wrong; }

    void AddWrong(const QString &character, int count)
    {
        if (!wrong.any)
            wrong = {true, {}, {}};
        wrong.nWrong.push_back(count);
        wrong.sWrong += character;
    }

    WrongCharacters wrong;

protected:
    int FinalUnits() const override { return m_nTyped; }
};

/// Heights of the runs of columns that hold the colour, from left to right, in device pixels.
QList<int> ColumnRuns(const QImage &image, const QColor &color)
{
    QList<int> heights;
    bool inside = false;
    for (int x = 0; x < image.width(); ++x) {
        int height = 0;
        for (int y = 0; y < image.height(); ++y)
            height += image.pixelColor(x, y) == color;
        if (height == 0) {
            inside = false;
        } else if (!inside) {
            heights += height;
            inside = true;
        } else {
            heights.last() = qMax(heights.last(), height);
        }
    }
    return heights;
}

QImage Painted(Chart &chart, qreal ratio)
{
    QImage image(chart.size() * ratio, QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    chart.render(&image);
    return image;
}

constexpr QColor BarColor(200, 10, 20);

} // namespace

class TestTestResult : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install.emplace(); }

    void ScaleMarksAreRound_data()
    {
        QTest::addColumn<double>("maximum");
        QTest::addColumn<bool>("whole");
        QTest::addColumn<QString>("marks");
        QTest::newRow("nothing") << 0.0 << true << u"0"_s;
        QTest::newRow("one") << 1.0 << true << u"0 1"_s;
        QTest::newRow("fractions") << 1.0 << false << u"0 0.2 0.4 0.6 0.8 1"_s;
        QTest::newRow("top far from a mark") << 97.0 << true << u"0 20 40 60 80 97"_s;
        QTest::newRow("top close to a mark") << 208.0 << true << u"0 50 100 150 200"_s;
        QTest::newRow("large") << 2000000.0 << true << u"0 500000 1000000 1500000 2000000"_s;
        QTest::newRow("no number") << qQNaN() << true << u"0"_s;
    }
    void ScaleMarksAreRound()
    {
        QFETCH(double, maximum);
        QFETCH(bool, whole);
        QStringList shown;
        for (const double mark : ChartScale(maximum, 5, whole).Marks())
            shown += ChartScale::Text(mark);
        QTEST(shown.join(u' '), "marks");
    }

    void BarsStandAsHighAsTheirValues()
    {
        for (const qreal ratio : {1.0, 2.0}) {
            Chart chart(u"chart"_s, u"Chart"_s, nullptr);
            chart.resize(500, 260);
            chart.SetData(Bars({40, 20, 0, 10}, {u"中"_s, u"b"_s, u"c"_s, u"d"_s}, 40));
            const QList<int> runs = ColumnRuns(Painted(chart, ratio), BarColor);
            QCOMPARE(runs.size(), 3);
            QVERIFY2(runs[0] > 150 * ratio, qPrintable(QString::number(runs[0])));
            QVERIFY(qAbs(runs[0] - 2 * runs[1]) <= 3 * ratio);
            QVERIFY(qAbs(runs[0] - 4 * runs[2]) <= 6 * ratio);
            QCOMPARE(chart.accessibleDescription(), u"中: 40, b: 20, c: 0, d: 10"_s);
        }
    }

    void OddDataIsDrawn_data()
    {
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<bool>("visible");
        QTest::newRow("none") << QList<double>{} << 0.0 << false;
        QTest::newRow("one") << QList<double>{5} << 5.0 << true;
        QTest::newRow("only zeros") << QList<double>{0, 0} << 0.0 << false;
        QTest::newRow("no scale") << QList<double>{3} << 0.0 << false;
        QTest::newRow("hundreds") << QList<double>(700, 5) << 5.0 << true;
        QTest::newRow("no numbers") << QList<double>{qQNaN(), qInf(), -4} << 5.0 << true;
    }
    void OddDataIsDrawn()
    {
        QFETCH(QList<double>, values);
        QFETCH(double, maximum);
        QFETCH(bool, visible);
        for (const auto kind : {ChartData::Kind::Bar, ChartData::Kind::Line}) {
            Chart chart(u"chart"_s, u"Chart"_s, nullptr);
            chart.resize(500, 260);
            ChartData data = Bars(values, QStringList(values.size(), u"x"_s), maximum);
            data.kind = kind;
            chart.SetData(data);
            const QImage image = Painted(chart, 1);
            // A line runs along the axis where there is no scale; a bar has no height there.
            const bool flatLine = kind == ChartData::Kind::Line && values.value(0) > 0;
            QCOMPARE(!ColumnRuns(image, BarColor).isEmpty(), visible || flatLine);
            // Nothing is painted over the panel's edge.
            for (int y = 20; y < 240; ++y)
                QCOMPARE(image.pixelColor(0, y), image.pixelColor(499, y));
        }
    }

    void RatesTheTypist_data()
    {
        QTest::addColumn<float>("speed");
        QTest::addColumn<float>("rate");
        QTest::addColumn<QString>("ime");
        QTest::addColumn<QString>("level");
        QTest::newRow("keys count a fifth") << 250.F << 90.F << QString() << u"Quick Typer"_s;
        QTest::newRow("lower rate") << 250.F << 60.F << QString() << u"Expert"_s;
        QTest::newRow("Pinyin") << 40.F << 90.F << u"Intelligent Pinyin"_s << u"Master"_s;
        QTest::newRow("characters count whole") << 12.F << 90.F << u"Sunpinyin"_s << u"Beginner"_s;
        QTest::newRow("nothing typed") << 0.F << 0.F << QString() << u"Beginner"_s;
    }
    void RatesTheTypist()
    {
        QFETCH(float, speed);
        QFETCH(float, rate);
        QFETCH(QString, ime);
        QFETCH(QString, level);
        Session session(speed, rate);
        session.m_nBackSpace = 7;
        DlgTestResult dialog(nullptr);
        QVERIFY(dialog.CalChartData(&session, ime));
        const auto text = [&](const char *name) {
            return dialog.findChild<QLabel *>(QString::fromLatin1(name))->text();
        };
        QCOMPARE(text("Label2"), u"Correct rate:  "_s + QString::number(int(rate)));
        QCOMPARE(text("Label3"), u"Average speed: "_s + QString::number(int(speed)));
        QCOMPARE(text("Label4"), u"Backspace key: 7"_s);
        QCOMPARE(text("labLevel"), u"Your level is:   "_s + level);
    }

    void ShowsBothCharts()
    {
        FakeServices services;
        Session session;
        session.StartType();
        for (const int units : {40, 55, 30}) {
            for (int i = 0; i < units; ++i)
                session.CheckString(u"x"_s);
            services.clock.Move(30);
            session.CalTypeSpeed();
        }
        session.StopType();
        session.AddWrong(u"中"_s, 4);
        session.AddWrong(u"q"_s, 1);
        DlgTestResult dialog(nullptr);
        QVERIFY(!dialog.CalChartData(nullptr, {}));
        QVERIFY(dialog.CalChartData(&session, {}));
        dialog.SelectChart(0);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto *chart = dialog.findChild<QWidget *>(u"picChart"_s);
        QCOMPARE(chart->accessibleDescription(), u"0.5: 80, 1: 110, 1.5: 60"_s);
        const QPoint middle = chart->rect().center();
        QHelpEvent hover(QEvent::ToolTip, middle, chart->mapToGlobal(middle));
        QCoreApplication::sendEvent(chart, &hover);
        QCOMPARE(QToolTip::text(), u"1: 110"_s);
        QTest::mouseClick(dialog.findChild<QAbstractButton *>(u"optChart1"_s), Qt::LeftButton, {}, {10, 10});
        QCOMPARE(chart->accessibleDescription(), u"中: 4, q: 1"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
    }

    void CutsTheWrongCharacters_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("shown");
        QTest::newRow("ten stay") << 10 << 10;
        QTest::newRow("eleven are cut to nine") << 11 << 9;
        QTest::newRow("none") << 0 << 0;
    }
    void CutsTheWrongCharacters()
    {
        QFETCH(int, count);
        Session session;
        for (int i = 0; i < count; ++i)
            session.AddWrong(QChar(u'a' + i), 20 - i);
        DlgTestResult dialog(nullptr);
        QVERIFY(dialog.CalChartData(&session, {}));
        dialog.SelectChart(1);
        const QString shown = dialog.findChild<QWidget *>(u"picChart"_s)->accessibleDescription();
        QTEST(int(shown.count(u':')), "shown");
        QVERIFY(count == 0 || shown.startsWith(u"a: 20, b: 19"_s));
    }

private:
    static ChartData Bars(const QList<double> &values, const QStringList &labels, double maximum)
    {
        ChartData data;
        data.kind = ChartData::Kind::Bar;
        data.title = u"Title"_s;
        data.valueTitle = u"value"_s;
        data.values = values;
        data.labels = labels;
        data.maximum = maximum;
        data.color = BarColor;
        return data;
    }

    std::optional<SkinnedInstall> m_install;
};

QTEST_MAIN(TestTestResult)
#include "tst_TestResult.moc"
