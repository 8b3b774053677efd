#include "DefaultsStore.h"
#include "MainViewController.h"
#include "ModelScene.h"

#include <QAccessible>
#include <QTranslator>

namespace {

/// The main window's content with its options open, and what else shows texts.
class Views : public ModelScene
{
public:
    Views()
        : controller(model, fixture.defaults)
    {
        controller.finishWelcome();
        controller.setOptionsVisible(true);
        ConversionSettings settings = model.settings();
        settings.format = OutputFormat::jpeg;
        model.setSettings(settings);
        model.setItems({item(QStringLiteral("a.heic"), ConversionStatus::ready),
                        item(QStringLiteral("b.heic"), ConversionStatus::failed),
                        item(QStringLiteral("c.heic"), ConversionStatus::converting)});
        appearance.setMotion(SystemAppearance::Motion::Reduced);
        shown = show("import Lumaport.Views\nMainView { width: 800; height: 900 }",
                     {{QStringLiteral("controller"), QVariant::fromValue(&controller)}});
    }
    ~Views() { close(); }

    MainViewController controller;
    const QQuickItem *shown = nullptr;
};

/// Every text that the tree speaks or shows, with the item it belongs to.
void collect(QAccessibleInterface *node, QMap<QString, QString> &texts)
{
    for (const auto kind : {QAccessible::Name, QAccessible::Description}) {
        const QString text = node->text(kind);
        if (!text.isEmpty()) {
            texts.insert(text, node->object() ? node->object()->objectName() : QString());
        }
    }
    for (int i = 0; i < node->childCount(); ++i) {
        collect(node->child(i), texts);
    }
}

} // namespace

class PseudoLocaleTest : public QObject
{
    Q_OBJECT

    QTranslator m_translator;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_translator.load(QStringLiteral(LUMAPORT_PSEUDO_LOCALE)));
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
    }

    void shouldHaveNoTextWiredIn()
    {
        Views views;
        QMap<QString, QString> texts;
        for (const bool history : {false, true}) {
            views.controller.setShowingHistory(history);
            collect(QAccessible::queryAccessibleInterface(&views.window), texts);
        }
        QVERIFY(texts.size() > 40);
        const QStringList data{QStringLiteral("Lumaport"),
                               QStringLiteral("JPEG"),
                               QStringLiteral("PNG"),
                               QStringLiteral("a.png"),
                               QStringLiteral("b.heic"),
                               QStringLiteral("c.heic"),
                               views.model.watchFolder().toLocalFile()};
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            QVERIFY2(data.contains(text.key()) || text.key().startsWith(QLatin1Char('[')),
                     qPrintable(text.key() + QStringLiteral(" in ") + text.value()));
        }
    }

    void shouldWrapLongerTextsRatherThanCutThem_data()
    {
        QTest::addColumn<bool>("history");
        QTest::newRow("where photos land") << false;
        QTest::newRow("the history") << true;
    }

    void shouldWrapLongerTextsRatherThanCutThem()
    {
        QFETCH(bool, history);
        Views views;
        views.controller.setShowingHistory(history);
        int checked = 0;
        const std::function<void(const QQuickItem *)> check = [&](const QQuickItem *item) {
            const QVariant truncated = item->property("truncated");
            if (truncated.isValid() && item->isVisible()) {
                ++checked;
                QVERIFY2(!truncated.toBool(), qPrintable(item->property("text").toString()));
                const double overflow = item->property("contentWidth").toDouble() - item->width();
                QVERIFY2(overflow < 1.0, qPrintable(item->property("text").toString()));
            }
            for (const QQuickItem *child : item->childItems()) {
                check(child);
            }
        };
        check(views.shown);
        QVERIFY(checked > 15);
    }
};

QTEST_MAIN(PseudoLocaleTest)
#include "PseudoLocaleTest.moc"
