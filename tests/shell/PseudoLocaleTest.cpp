#include "MainViewController.h"
#include "MenuBarViewController.h"
#include "ModelScene.h"

#include <QAccessible>
#include <QTranslator>

// Every text of the window and the panel in a language whose texts are longer, each in brackets.
class PseudoLocaleTest : public QObject
{
    Q_OBJECT

    QTranslator m_translator;

    /// Every text that the tree of `node` shows or has for a screen reader.
    static QStringList texts(QAccessibleInterface *node)
    {
        QStringList found{node->text(QAccessible::Name), node->text(QAccessible::Description)};
        for (int i = 0; i < node->childCount(); ++i) {
            found << texts(node->child(i));
        }
        return found;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_translator.load(LUMAPORT_PSEUDO_LOCALE));
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
    }

    void shouldTranslateEveryTextAndWrapLongerOnes_data()
    {
        QTest::addColumn<QByteArray>("view");
        QTest::addColumn<bool>("history");
        QTest::addColumn<int>("leastTexts");
        const QByteArray window = "import Lumaport.Views\nMainView { width: 800; height: 900 }";
        QTest::newRow("where photos land") << window << false << 30;
        QTest::newRow("the history") << window << true << 30;
        QTest::newRow("the panel") << QByteArray("import Lumaport.StatusItem\nMenuBarView {}") << false << 15;
    }

    void shouldTranslateEveryTextAndWrapLongerOnes()
    {
        QFETCH(QByteArray, view);
        QFETCH(bool, history);
        QFETCH(int, leastTexts);
        ModelScene scene;
        MainViewController window(scene.model, scene.fixture.defaults);
        MenuBarViewController panel(scene.model, [] {});
        window.finishWelcome();
        window.setProperty("optionsVisible", true);
        window.setProperty("showingHistory", history);
        scene.model.setSettings({.format = OutputFormat::jpeg});
        scene.model.setItems({scene.item("a.heic", ConversionStatus::ready),
                              scene.item("b.heic", ConversionStatus::failed),
                              scene.item("c.heic", ConversionStatus::converting)});
        scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
        const bool isPanel = view.contains("MenuBarView");
        QQuickItem *shown = scene.show(
            view, {{"controller", isPanel ? QVariant::fromValue(&panel) : QVariant::fromValue(&window)}});
        QCOMPARE(scene.cutTexts(shown), QStringList());
        if (isPanel) {
            for (const auto &[left, right] :
                 {std::pair{"formatCaption", "formatControl"}, std::pair{"openButton", "quitButton"}}) {
                const QQuickItem *item = scene.find(left);
                QVERIFY(item->x() + item->width() < scene.find(right)->x());
            }
        } else {
            QCOMPARE(scene.cutTexts(scene.find("scroll")), QStringList());
        }
        QStringList all = texts(QAccessible::queryAccessibleInterface(&scene.window));
        all.removeDuplicates();
        QVERIFY2(all.size() > leastTexts, qPrintable(QString::number(all.size())));
        const QStringList data{"",      "Lumaport", "JPEG",   "PNG",
                               "a.png", "b.heic",   "c.heic", scene.model.watchFolder().toLocalFile()};
        for (const QString &text : std::as_const(all)) {
            QVERIFY2(data.contains(text) || text.startsWith('['), qPrintable(text));
        }
        scene.close();
    }
};

QTEST_MAIN(PseudoLocaleTest)
#include "PseudoLocaleTest.moc"
