#include "core/drills/AnsiKeyboard.h"
#include "platform/SqliteFile.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QPainterPath>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The columns of the hands' pictures from which the drills light a finger.
struct FingerStrip
{
    const char *name;
    int left;
    int width;
};

constexpr FingerStrip mainKeyboardStrips[]{
    {"left little", 0, 37},    {"left ring", 37, 33},   {"left middle", 73, 42},
    {"left index", 115, 45},   {"thumb", 160, 50},      {"right index", 365, 45},
    {"right middle", 410, 42}, {"right ring", 455, 36}, {"right little", 488, 37},
};
constexpr FingerStrip keypadStrips[]{
    {"keypad thumb", 320, 45}, {"keypad index", 365, 45},  {"keypad middle", 410, 42},
    {"keypad ring", 452, 36},  {"keypad little", 488, 37},
};

bool SameIn(const QImage &one, const QImage &other, const QRect &area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                return false;
        }
    }
    return true;
}

int DifferingColumns(const QImage &one, const QImage &other, int left, int right)
{
    int count = 0;
    for (int x = left; x < right; ++x)
        count += SameIn(one, other, QRect(x, 0, 1, one.height())) ? 0 : 1;
    return count;
}

QRect Scaled(const QRect &rect, int scale)
{
    return {rect.topLeft() * scale, rect.size() * scale};
}

} // namespace

class tst_SkinPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void EveryPictureIsThereAtBothScales_data();
    void EveryPictureIsThereAtBothScales();
    void StripsHoldDistinctFrames_data();
    void StripsHoldDistinctFrames();
    void MenuFitsTheSmallestScreen();
    void GroundIsOpaque();
    void EachTabIsDrawnAsItsHotPolygon_data();
    void EachTabIsDrawnAsItsHotPolygon();
    void EachFingerIsLitWithinItsStripsOnly_data();
    void EachFingerIsLitWithinItsStripsOnly();
    void KeysCanBeCutOutOfTheKeyboards_data();
    void KeysCanBeCutOutOfTheKeyboards();
    void ThemeHoldsTheColorsOfTheWindows();
    void ProgramHoldsItsOwnPictures_data();
    void ProgramHoldsItsOwnPictures();

private:
    QImage Load(const QString &name, int scale) const;

    SqliteFile m_library;
};

void tst_SkinPictures::initTestCase()
{
    const QString path = QDir(qEnvironmentVariable("QUORVEX_INSTALL")).filePath(u"Bitmap/1024_CH.DLL"_s);
    m_library = SqliteFile(path);
    QVERIFY2(m_library.IsOpen(), qPrintable(path));
}

QImage tst_SkinPictures::Load(const QString &name, int scale) const
{
    QImage image;
    m_library.Query("SELECT png FROM bitmap WHERE name = ? AND scale = ?", {name, scale},
                    [&image](const SqliteFile::Row &row) {
                        image.loadFromData(row.Bytes(0), "PNG");
                        return false;
                    });
    return image.convertToFormat(QImage::Format_ARGB32);
}

void tst_SkinPictures::EveryPictureIsThereAtBothScales_data()
{
    QTest::addColumn<QSize>("size"); // where the windows' layout depends on it
    const auto add = [](const char *name, const QSize &size = {}) { QTest::newRow(name) << size; };
    add("MAIN_BG");
    add("MAIN_BACK");
    for (const char *name : {"BTN_YINGWEN", "BTN_CESHI", "BTN_JIAOCHENG", "BTN_YOUXI_MISSILE",
                             "BTN_YOUXI_RABBIT", "BTN_GERENJILU", "BTN_TUICHUDENGLU"})
        add(name, {4 * 220, 44});
    for (const char *name : {"BTN_CLOSE", "BTN_MIN", "BTN_HELP"})
        add(name, {4 * 40, 26});
    for (const char *name : {"DIALOG_TITLE", "DLG_BTN_CLOSE", "EDGE_LEFT", "EDGE_RIGHT", "EDGE_BOTTOM",
                             "EDGE_LEFTDOWN", "EDGE_RIGHTDOWN"})
        add(name);
    for (const char *name : {"BTN_OK", "BTN_CANCEL", "BTN_YES", "BTN_NO", "BTN_LOGIN"})
        add(name, {4 * 90, 30});
    add("BTN_DELETE", {5 * 90, 30});
    for (const char *name : {"ICON_TIME", "ICON_SPEED", "ICON_SCHEDULE", "ICON_VERACITY"})
        add(name, {22, 22});
    for (const char *name : {"PROGRESSBAR_BLUE", "PROGRESSBAR_GREEN"})
        add(name, {140, 16});
    for (const char *name : {"EN_LABEL_KEY_B", "EN_LABEL_KEY_E", "EN_LABEL_WORD", "EN_LABEL_ARTICLE"})
        add(name, {994, 40});
    for (const char *name : {"EN_KEY_BACK_B", "EN_KEY_BACK_E"})
        add(name, {994, 664});
    for (const char *name : {"BTN_SELECTLESSON", "BTN_KEYBOARD_NUMBER", "BTN_OPERATION"})
        add(name, {4 * 112, 32});
    for (const char *name : {"BTN_KEYBOARD_STAND", "BTN_BACK"})
        add(name, {4 * 122, 32});
    for (const char *name : {"HAND_CLEAR", "HAND_ON"})
        add(name, {525, 162});
    for (const char *name : {"ICON_KEY_ON", "ICON_KEY_NORMAL"})
        add(name, {64, 60});
    for (const char *name : {"KEYBOARD_NORMAL", "KEYBOARD_PROMPT", "KEYBOARD_PRESSED"})
        add(name, {896, 276});
    for (const char *name : {"KEYBOARD_NORMAL_SMALL", "KEYBOARD_PROMPT_SMALL", "KEYBOARD_PRESSED_SMALL"})
        add(name, {704, 217});
}

void tst_SkinPictures::EveryPictureIsThereAtBothScales()
{
    QFETCH(QSize, size);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QImage single = Load(name, 1);
    const QImage twice = Load(name, 2);
    QVERIFY(!single.isNull());
    QCOMPARE(twice.size(), single.size() * 2);
    if (size.isValid())
        QCOMPARE(single.size(), size);
    if (size.isValid() && size.width() > 8) // flat edges and tiles may well be equal when enlarged
        QVERIFY2(twice != single.scaled(twice.size()), "drawn afresh, not enlarged");
}

void tst_SkinPictures::StripsHoldDistinctFrames_data()
{
    QTest::addColumn<int>("frames");
    for (const char *name : {"BTN_YINGWEN",        "BTN_CESHI",        "BTN_JIAOCHENG",
                             "BTN_YOUXI_MISSILE",  "BTN_YOUXI_RABBIT", "BTN_GERENJILU",
                             "BTN_TUICHUDENGLU",   "BTN_CLOSE",        "BTN_MIN",
                             "BTN_HELP",           "DLG_BTN_CLOSE",    "BTN_OK",
                             "BTN_CANCEL",         "BTN_YES",          "BTN_NO",
                             "BTN_LOGIN",          "BTN_SELECTLESSON", "BTN_KEYBOARD_NUMBER",
                             "BTN_KEYBOARD_STAND", "BTN_OPERATION",    "BTN_BACK"})
        QTest::newRow(name) << 4;
    QTest::newRow("BTN_DELETE") << 5;
}

void tst_SkinPictures::StripsHoldDistinctFrames()
{
    QFETCH(int, frames);
    for (const int scale : {1, 2}) {
        const QImage strip = Load(QString::fromLatin1(QTest::currentDataTag()), scale);
        QCOMPARE(strip.width() % frames, 0);
        QList<QImage> seen;
        for (int frame = 0; frame < frames; ++frame) {
            const int width = strip.width() / frames;
            const QImage image = strip.copy(frame * width, 0, width, strip.height());
            QVERIFY(!seen.contains(image));
            seen.append(image);
        }
    }
}

// The picture must leave room for the title and the window's edge, and must hold its buttons and the user's
// name.
void tst_SkinPictures::MenuFitsTheSmallestScreen()
{
    const QSize size = Load(u"MAIN_BACK"_s, 1).size();
    QVERIFY(size.width() >= 680 + 220 && size.width() <= 1024);
    QVERIFY(size.height() >= 220 + 6 * 50 + 44);
    const int top = (768 - size.height()) / 2 + 10;
    QVERIFY(top > 40 && top + size.height() < 768);
}

void tst_SkinPictures::GroundIsOpaque()
{
    const QImage ground = Load(u"MAIN_BG"_s, 1);
    const QColor expected(47, 61, 86);
    for (int y = 0; y < ground.height(); ++y) {
        for (int x = 0; x < ground.width(); ++x) {
            const QColor color = ground.pixelColor(x, y);
            QCOMPARE(color.alpha(), 255);
            QVERIFY2(qAbs(color.lightness() - expected.lightness()) < 8, "the texture is barely visible");
        }
    }
}

void tst_SkinPictures::EachTabIsDrawnAsItsHotPolygon_data()
{
    QTest::addColumn<int>("litTab");
    QTest::newRow("EN_LABEL_KEY_B") << 0;
    QTest::newRow("EN_LABEL_KEY_E") << 1;
    QTest::newRow("EN_LABEL_WORD") << 2;
    QTest::newRow("EN_LABEL_ARTICLE") << 3;
}

void tst_SkinPictures::EachTabIsDrawnAsItsHotPolygon()
{
    QFETCH(int, litTab);
    const QList<QPolygonF> polygons{
        QPolygonF(QList<QPointF>{{0, 0}, {370, 0}, {390, 20}, {410, 40}, {0, 40}, {0, 20}}),
        QPolygonF(QList<QPointF>{{410, 0}, {575, 0}, {590, 20}, {600, 40}, {410, 40}, {410, 20}}),
        QPolygonF(QList<QPointF>{{600, 0}, {760, 0}, {780, 20}, {790, 40}, {600, 40}, {600, 20}}),
        QPolygonF(QList<QPointF>{{790, 0}, {950, 0}, {965, 20}, {980, 40}, {790, 40}, {790, 20}}),
    };
    const QImage strip = Load(QString::fromLatin1(QTest::currentDataTag()), 1);
    QRgb litColor = 0;
    QRgb plainColor = 0;
    for (int tab = 0; tab < polygons.size(); ++tab) {
        const QRgb face = strip.pixel(static_cast<int>(polygons.at(tab).boundingRect().left()) + 12, 30);
        (tab == litTab ? litColor : plainColor) = face;
    }
    QVERIFY(litColor != plainColor);

    for (int y = 10; y < 38; y += 3) { // above lie the rounded corners, below the panel's border
        for (int x = 2; x < strip.width() - 2; ++x) {
            int hit = -1;
            bool nearEdge = false;
            for (int tab = 0; tab < polygons.size(); ++tab) {
                const auto holds = [&](qreal offset) {
                    return polygons.at(tab).containsPoint({x + 0.5 + offset, y + 0.5}, Qt::OddEvenFill);
                };
                if (holds(0))
                    hit = tab;
                if (holds(-3) != holds(3))
                    nearEdge = true;
            }
            if (nearEdge)
                continue;
            const int alpha = qAlpha(strip.pixel(x, y));
            QVERIFY2(hit >= 0 ? alpha == 255 : alpha == 0, qPrintable(u"%1, %2"_s.arg(x).arg(y)));
            if (hit < 0)
                continue;
            QVERIFY2(strip.pixel(x, y) != (hit == litTab ? plainColor : litColor),
                     qPrintable(u"%1, %2"_s.arg(x).arg(y)));
        }
    }
}

void tst_SkinPictures::EachFingerIsLitWithinItsStripsOnly_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("single") << 1;
    QTest::newRow("twice") << 2;
}

void tst_SkinPictures::EachFingerIsLitWithinItsStripsOnly()
{
    QFETCH(int, scale);
    const QImage clear = Load(u"HAND_CLEAR"_s, scale);
    const QImage lit = Load(u"HAND_ON"_s, scale);
    QCOMPARE(lit.size(), clear.size());

    // The strips of both tables overlap in places: a strip shows its own finger only if what lies between the
    // fingers is the same in both pictures.
    const QList<std::pair<int, int>> between{{34, 37},   {70, 73},   {210, 320},
                                             {452, 455}, {488, 491}, {205, 210}};
    for (const auto &[left, right] : between)
        QCOMPARE(DifferingColumns(clear, lit, left * scale, right * scale), 0);

    const auto check = [&](const FingerStrip &strip) {
        const int columns =
            DifferingColumns(clear, lit, strip.left * scale, (strip.left + strip.width) * scale);
        QVERIFY2(columns > 20 * scale, strip.name);
        const QImage cut = lit.copy(strip.left * scale, 0, strip.width * scale, lit.height());
        int accent = 0;
        for (int y = 0; y < cut.height(); ++y) {
            for (int x = 0; x < cut.width(); ++x)
                accent += cut.pixelColor(x, y) == QColor(255, 164, 84) ? 1 : 0;
        }
        QVERIFY2(accent > 100 * scale, strip.name);
    };
    for (const FingerStrip &strip : mainKeyboardStrips)
        check(strip);
    for (const FingerStrip &strip : keypadStrips)
        check(strip);
}

void tst_SkinPictures::KeysCanBeCutOutOfTheKeyboards_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("scale");
    for (const int scale : {1, 2}) {
        QTest::addRow("large %d", scale) << int(AnsiKeyboard::Size::Large) << QString() << scale;
        QTest::addRow("small %d", scale) << int(AnsiKeyboard::Size::Small) << u"_SMALL"_s << scale;
    }
}

void tst_SkinPictures::KeysCanBeCutOutOfTheKeyboards()
{
    QFETCH(int, size);
    QFETCH(QString, suffix);
    QFETCH(int, scale);
    const QList<QImage> states{Load(u"KEYBOARD_NORMAL"_s + suffix, scale),
                               Load(u"KEYBOARD_PROMPT"_s + suffix, scale),
                               Load(u"KEYBOARD_PRESSED"_s + suffix, scale)};
    QRegion ground(states.constFirst().rect());
    for (int index = 0; index < AnsiKeyboard::Keys().size(); ++index) {
        const QRect key = Scaled(AnsiKeyboard::KeyRect(index, static_cast<AnsiKeyboard::Size>(size)), scale);
        const QString name = AnsiKeyboard::Keys().at(index).name;
        QVERIFY2(!SameIn(states.at(0), states.at(1), key), qPrintable(name));
        QVERIFY2(!SameIn(states.at(0), states.at(2), key), qPrintable(name));
        QVERIFY2(!SameIn(states.at(1), states.at(2), key), qPrintable(name));
        ground -= key;
    }
    for (const QRect &rect : ground) {
        QVERIFY(SameIn(states.at(0), states.at(1), rect));
        QVERIFY(SameIn(states.at(0), states.at(2), rect));
    }
}

void tst_SkinPictures::ThemeHoldsTheColorsOfTheWindows()
{
    QMap<QString, QString> colors;
    QVERIFY(m_library.Query("SELECT key, value FROM theme", {}, [&colors](const SqliteFile::Row &row) {
        colors.insert(row.Text(0), row.Text(1));
        return true;
    }));
    for (const QString &key :
         {u"focus"_s, u"window.title"_s, u"panel.face"_s, u"keyboard.ground"_s, u"text.wrong"_s})
        QVERIFY2(QColor::isValidColor(colors.value(key)), qPrintable(key));
    QCOMPARE(colors.value(u"text.wrong"_s), u"#ff0000"_s);
    QCOMPARE(colors.value(u"window.edgeOuter"_s), QColor(141, 148, 167).name());
    QCOMPARE(colors.value(u"window.edgeInner"_s), QColor(211, 214, 224).name());
}

void tst_SkinPictures::ProgramHoldsItsOwnPictures_data()
{
    QTest::addColumn<int>("side");
    for (const char *name :
         {"DLG_MESSAGE_INFORMATION", "DLG_MESSAGE_STOP", "DLG_MESSAGE_ERROR", "DLG_MESSAGE_QUESTION"})
        QTest::newRow(name) << 40;
    QTest::newRow("APP_ICON") << 64;
}

void tst_SkinPictures::ProgramHoldsItsOwnPictures()
{
    QFETCH(int, side);
    const QString path = u":/message/%1"_s.arg(QLatin1StringView(QTest::currentDataTag()));
    QCOMPARE(QImage(path + u".png"_s).size(), QSize(side, side));
    QCOMPARE(QImage(path + u"@2x.png"_s).size(), QSize(2 * side, 2 * side));
}

QTEST_MAIN(tst_SkinPictures)
#include "tst_SkinPictures.moc"
