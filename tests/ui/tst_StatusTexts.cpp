#include "core/shell/Public_Define.h"
#include "ui/skin/StatusTexts.h"
#include "ui/widgets/ProgressBox.h"

#include <QLabel>
#include <QPainter>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestStatusTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Time_data()
    {
        QTest::addColumn<float>("seconds");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("nothing") << 0.0F << u"0:00:00"_s << u"time:"_s;
        QTest::newRow("seconds and minutes") << 307.0F << u"0:05:07"_s << u"time:5minutes7seconds"_s;
        QTest::newRow("an hour") << 3600.0F << u"1:00:00"_s << u"time:1Hour"_s;
        QTest::newRow("rounded up to a minute") << 59.9F << u"0:01:00"_s << u"time:1minutes"_s;
        QTest::newRow("rounded down") << 59.4F << u"0:00:59"_s << u"time:59seconds"_s;
        QTest::newRow("half to even, down") << 0.5F << u"0:00:00"_s << u"time:"_s;
        QTest::newRow("half to even, up") << 1.5F << u"0:00:02"_s << u"time:2seconds"_s;
        QTest::newRow("more than a day") << 90061.0F << u"1:01:01"_s << u"time:25Hour1minutes1seconds"_s;
        QTest::newRow("before the start") << -3.0F << u"0:00:00"_s << u"time:"_s;
    }

    void Time()
    {
        QFETCH(float, seconds);
        QLabel label;
        Public_Function::ShowTimeText(&label, seconds);
        QTEST(label.text(), "caption");
        QTEST(label.toolTip(), "toolTip");
    }

    void SpeedAndRate()
    {
        QLabel label;
        Public_Function::ShowSpeedText(&label, u"120"_s, true);
        QCOMPARE(label.text(), u"120KPM"_s);
        QCOMPARE(label.toolTip(), u"per minute 120 keys"_s);
        Public_Function::ShowSpeedText(&label, u"24"_s, false);
        QCOMPARE(label.text(), u"24WPM"_s);
        QCOMPARE(label.toolTip(), u"per minute  24 words"_s);
        Public_Function::ShowRateText(&label, 96);
        QCOMPARE(label.text(), u"96%"_s);
        QCOMPARE(label.toolTip(), u"96%"_s);
    }

    void Progress()
    {
        ProgressBox box(nullptr);
        QCOMPARE(box.toolTip(), u"00 %"_s);
        box.resize(200, 14);
        const QImage empty = box.grab().toImage();
        Public_Function::ShowProgress(&box, 40);
        QCOMPARE(box.toolTip(), u"40 %"_s);
        QCOMPARE(box.accessibleDescription(), u"40 %"_s);
        const QImage part = box.grab().toImage();
        // Two fifths are filled, the rest is the empty bar.
        QVERIFY(part.pixelColor(75, 7) != empty.pixelColor(75, 7));
        QCOMPARE(part.pixelColor(85, 7), empty.pixelColor(85, 7));
        Public_Function::ShowProgress(&box, 100);
        QVERIFY(box.grab().toImage().pixelColor(195, 7) != empty.pixelColor(195, 7));
        Public_Function::ShowProgress(&box, 0);
        QCOMPARE(box.grab().toImage(), empty);
        QCOMPARE(box.toolTip(), u"0 %"_s);
    }

    void TitleIsPrefixedOnce()
    {
        QImage image(400, 40, QImage::Format_RGB32);
        QPainter painter(&image);
        QString title = u"Typing Course"_s;
        Public_Function::DrawWindowTitle(painter, 2, title);
        QCOMPARE(title, u"Quorvex -- Typing Course"_s);
        Public_Function::DrawWindowTitle(painter, 2, title);
        QCOMPARE(title, u"Quorvex -- Typing Course"_s);
    }

    void FontSizes_data()
    {
        using Sizes = std::array<qint16, 8>;
        QTest::addColumn<double>("dotsPerInch");
        QTest::addColumn<Sizes>("sizes");
        QTest::newRow("96 dots") << 96.0 << Sizes{24, 20, 20, 16, 32, 24, 12, 10};
        QTest::newRow("120 dots") << 120.0 << Sizes{19, 16, 16, 13, 26, 19, 10, 8};
        QTest::newRow("192 dots") << 192.0 << Sizes{12, 10, 10, 8, 16, 12, 6, 5};
        QTest::newRow("unknown") << 0.0 << Sizes{24, 20, 20, 16, 32, 24, 12, 10};
    }

    void FontSizes()
    {
        QFETCH(double, dotsPerInch);
        Public_Function::InitFontSizes(dotsPerInch);
        QTEST(Shared().FontSizeTable, "sizes");
    }
};

QTEST_MAIN(TestStatusTexts)
#include "tst_StatusTexts.moc"
