#include "MainViewController.h"
#include "ModelScene.h"

#include <QAccessible>
#include <QTranslator>

// Every text of the main view in a language whose texts are longer, each in brackets.
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
        QTest::addColumn<bool>("history");
        QTest::newRow("where photos land") << false;
        QTest::newRow("the history") << true;
    }

    void shouldTranslateEveryTextAndWrapLongerOnes()
    {
        QFETCH(bool, history);
        ModelScene scene;
        MainViewController controller(scene.model, scene.fixture.defaults);
        controller.finishWelcome();
        controller.setProperty("optionsVisible", true);
        controller.setProperty("showingHistory", history);
        scene.model.setSettings({.format = OutputFormat::jpeg});
        scene.model.setItems({scene.item("a.heic", ConversionStatus::ready),
                              scene.item("b.heic", ConversionStatus::failed),
                              scene.item("c.heic", ConversionStatus::converting)});
        scene.appearance.setMotion(SystemAppearance::Motion::Reduced);
        QQuickItem *view = scene.show("import Lumaport.Views\nMainView { width: 800; height: 900 }",
                                      {{"controller", QVariant::fromValue(&controller)}});
        QCOMPARE(scene.cutTexts(view), QStringList());
        QStringList all = texts(QAccessible::queryAccessibleInterface(&scene.window));
        all.removeDuplicates();
        QVERIFY2(all.size() > 30, qPrintable(QString::number(all.size())));
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
