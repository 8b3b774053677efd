#include "ModelScene.h"

#include <QAccessible>
#include <QTranslator>

namespace {

constexpr auto views = R"(
    import QtQuick
    import Lumaport.Interaction
    import Lumaport.Views
    Row {
        width: 760; height: 700
        OptionsPanel { width: 258; height: 700 }
        Column {
            width: 500
            MonitoringControl { width: 500 }
            FormatControl {}
            AppearanceControl {}
            ArrivalsList { width: 500 }
        }
    })";

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
        ModelScene scene;
        ConversionSettings settings = scene.model.settings();
        settings.format = OutputFormat::jpeg;
        scene.model.setSettings(settings);
        scene.model.setItems({scene.item(QStringLiteral("a.heic"), ConversionStatus::ready),
                              scene.item(QStringLiteral("b.heic"), ConversionStatus::failed),
                              scene.item(QStringLiteral("c.heic"), ConversionStatus::converting)});
        scene.show(views);
        QMap<QString, QString> texts;
        collect(QAccessible::queryAccessibleInterface(&scene.window), texts);
        QVERIFY(texts.size() > 25);
        const QStringList data{QStringLiteral("a.png"), QStringLiteral("b.heic"), QStringLiteral("c.heic"),
                               scene.model.watchFolder().adjusted(QUrl::StripTrailingSlash).toLocalFile()};
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            QVERIFY2(data.contains(text.key()) || text.key().startsWith(QLatin1Char('[')),
                     qPrintable(text.key() + QStringLiteral(" in ") + text.value()));
        }
    }

    void shouldWrapLongerTextsRatherThanCutThem()
    {
        ModelScene scene;
        scene.model.setItems({scene.item(QStringLiteral("b.heic"), ConversionStatus::failed)});
        const QQuickItem *shown = scene.show(views);
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
        check(shown);
        QVERIFY(checked > 15);
    }
};

QTEST_MAIN(PseudoLocaleTest)
#include "PseudoLocaleTest.moc"
