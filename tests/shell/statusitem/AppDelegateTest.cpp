#include "ShellFixture.h"
#include "TemplateImages.h"

#include <QSignalSpy>

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace {

/// Relative luminance and contrast as WCAG 2.1 defines them.
double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QImage symbol(const char *name)
{
    return TemplateImages::forSymbol(QLatin1String(name)).constFirst();
}

} // namespace

class AppDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheModelsStateInTheStatusItem_data()
    {
        QTest::addColumn<bool>("available");
        QTest::addColumn<bool>("watching");
        QTest::addColumn<bool>("busy");
        QTest::addColumn<QByteArray>("symbolName");
        QTest::addColumn<QString>("toolTip");
        QTest::addColumn<QString>("label");
        const QString on = QStringLiteral("Auto-convert: On");
        const QString paused = QStringLiteral("Auto-convert: Paused");
        const QString gone = QStringLiteral("Folder unavailable");
        const QString busyEnd = QStringLiteral(". Converting photos.");
        const auto row = [](const char *name, bool available, bool watching, bool busy,
                            const char *symbolName, const QString &title, const QString &end) {
            QTest::newRow(name) << available << watching << busy << QByteArray(symbolName)
                                << QString(QStringLiteral("Lumaport: ") + title + end)
                                << QString(QStringLiteral("Lumaport, ") + title);
        };
        row("watching", true, true, false, "photo.on.rectangle", on, {});
        row("watching, busy", true, true, true, "arrow.triangle.2.circlepath", on, busyEnd);
        row("paused", true, false, false, "pause.circle", paused, {});
        row("paused, busy", true, false, true, "arrow.triangle.2.circlepath", paused, busyEnd);
        row("unavailable", false, true, false, "exclamationmark.triangle", gone, {});
        row("unavailable, busy", false, true, true, "exclamationmark.triangle", gone, busyEnd);
        row("unavailable, paused", false, false, false, "exclamationmark.triangle", gone, {});
    }

    void shouldShowTheModelsStateInTheStatusItem()
    {
        QFETCH(bool, available);
        QFETCH(bool, watching);
        QFETCH(bool, busy);
        QFETCH(QByteArray, symbolName);
        ShellFixture shell;
        shell.configureMenuBar(); // before the changes: the item has to follow them
        shell.model().setIsWatching(watching);
        const QUrl photo = shell.write(QStringLiteral("IMG_1.HEIC"));
        if (busy) {
            shell.model().convertManually({photo});
        }
        if (!available) {
            QVERIFY(QDir(shell.home.filePath(QStringLiteral("Photos"))).removeRecursively());
            shell.model().retryMonitoring();
        }
        QCOMPARE(shell.item->look.images.constFirst(), symbol(symbolName.constData()));
        QTEST(shell.item->look.toolTip, "toolTip");
        QTEST(shell.item->look.accessibilityLabel, "label");
    }

    void shouldDrawItsSymbolsForLightAndDarkPanelsInEverySize()
    {
        for (const QColor &panel : {QColor(Qt::white), QColor(0xF6, 0xF5, 0xF4), QColor(0x35, 0x35, 0x35),
                                    QColor(0x2E, 0x2E, 0x2E), QColor(Qt::black)}) {
            QVERIFY2(contrast(TemplateImages::tint, panel) >= 3.0, qPrintable(panel.name()));
        }
        for (const char *name : {"photo.on.rectangle", "arrow.triangle.2.circlepath", "pause.circle",
                                 "exclamationmark.triangle"}) {
            QList<int> sizes;
            for (const QImage &image : TemplateImages::forSymbol(QLatin1String(name))) {
                sizes.append(image.width());
                int drawn = 0;
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        drawn += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
                    }
                }
                QVERIFY2(drawn > image.width() * image.height() / 20, name);
            }
            QCOMPARE(sizes, QList<int>({16, 22, 24, 32, 48, 64}));
        }
    }

    void shouldHaveOneStatusItemHoweverOftenTheWindowOpens()
    {
        ShellFixture shell;
        shell.delegate.togglePopover(); // before there is an item: nothing to open
        shell.configureMenuBar();
        shell.delegate.configureMenuBar(shell.model(), [] { QFAIL("the first action stays"); });
        QCOMPARE(shell.itemsMade, 1);
        shell.item->command(QStringLiteral("Open Lumaport")).action();
        QCOMPARE(shell.mainOpened, 1);
        const int looks = shell.item->looks;
        shell.model().setLastEventText(QStringLiteral("History cleared"));
        shell.model().clearHistory();
        QCOMPARE(shell.item->looks, looks); // no signal on the bus for what it does not show
    }

    void shouldOpenThePanelByAClickAndCloseItByTheNext()
    {
        ShellFixture shell;
        shell.configureMenuBar();
        PanelWindow *panel = shell.panelWindow();
        QVERIFY(!panel->isVisible());
        Q_EMIT shell.item->activated();
        QVERIFY(panel->isVisible());
        QCOMPARE(panel->width(), 360);
        QVERIFY(panel->screen()->availableGeometry().contains(panel->geometry()));
        Q_EMIT shell.item->activated();
        QVERIFY(!panel->isVisible());

        Q_EMIT shell.item->activated();
        QTest::keyClick(panel, Qt::Key_Escape);
        QVERIFY(!panel->isVisible());
    }

    void shouldCloseThePanelWhenTheFocusGoesElsewhere()
    {
        ShellFixture shell;
        shell.configureMenuBar();
        PanelWindow *panel = shell.panelWindow();
        QWindow other;
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        Q_EMIT shell.item->activated();
        QVERIFY(QTest::qWaitForWindowActive(panel));

        other.requestActivate();
        QTRY_VERIFY(!panel->isVisible());
        // When what took the focus was the click on the item, that same click must not open it again.
        Q_EMIT shell.item->activated();
        QVERIFY(!panel->isVisible());
        Q_EMIT shell.item->activated();
        QVERIFY(panel->isVisible());

        QVERIFY(QTest::qWaitForWindowActive(panel));
        other.requestActivate();
        QTRY_VERIFY(!panel->isVisible());
        shell.delegate.togglePopover(); // a command, which took the focus from nobody
        QVERIFY(panel->isVisible());

        QVERIFY(QTest::qWaitForWindowActive(panel));
        other.requestActivate();
        QTRY_VERIFY(!panel->isVisible());
        shell.jobs->advance(1s); // a click of its own
        Q_EMIT shell.item->activated();
        QVERIFY(panel->isVisible());
    }

    void shouldOfferInItsMenuWhatThePanelDoes()
    {
        ShellFixture shell;
        shell.configureMenuBar();
        const auto command = [&shell](const char *title) {
            return shell.item->command(QLatin1String(title));
        };
        QVERIFY(!command("Auto-convert: On").isEnabled);
        QVERIFY(!command("Reveal in Finder").isEnabled);
        command("Pause Watching").action();
        QVERIFY(!shell.model().isWatching());
        command("Resume Watching").action();
        QVERIFY(shell.model().isWatching());

        QCOMPARE(command("Convert to PNG").isChecked, std::optional(true));
        command("Convert to JPEG").action();
        QCOMPARE(shell.model().settings().format, OutputFormat::jpeg);
        QCOMPARE(command("Convert to PNG").isChecked, std::optional(false));
        QCOMPARE(command("Convert to JPEG").isChecked, std::optional(true));

        shell.model().convertManually({shell.write(QStringLiteral("IMG_1.HEIC"))});
        shell.turn();
        QVERIFY(!command("Reveal in Finder").isEnabled);
        shell.engine->succeed(QStringLiteral("IMG_1.png"));
        QVERIFY(command("Reveal in Finder").isEnabled);
        command("Reveal in Finder").action();
        QCOMPARE(shell.workspace->revealed, QList<QUrl>{shell.url(QStringLiteral("IMG_1.png"))});

        command("Show Quick Panel").action();
        QVERIFY(shell.panelWindow()->isVisible());
        command("Open Lumaport").action();
        QVERIFY(!shell.panelWindow()->isVisible());
        QCOMPARE(shell.mainOpened, 1);

        QVERIFY(QDir(shell.home.filePath(QStringLiteral("Photos"))).removeRecursively());
        shell.model().retryMonitoring();
        QVERIFY(QDir(shell.home.path()).mkdir(QStringLiteral("Photos")));
        command("Retry").action();
        QVERIFY(shell.model().monitorAvailable());
    }

    void shouldTouchItsMenuOnlyForWhatShows()
    {
        ShellFixture shell;
        shell.configureMenuBar();
        QCOMPARE(shell.item->menus, 1);
        shell.model().convertManually(
            {shell.write(QStringLiteral("IMG_1.HEIC")), shell.write(QStringLiteral("IMG_2.HEIC"))});
        shell.turn();
        ConversionSettings settings = shell.model().settings();
        settings.jpegQuality = 0.5;
        shell.model().setSettings(settings);
        QCOMPARE(shell.item->menus, 1);
        shell.model().setIsWatching(false);
        QCOMPARE(shell.item->menus, 2);
    }

    void shouldOpenTheWindowThenReplayTheWelcomeOneTurnLater()
    {
        ShellFixture shell;
        shell.configureMenuBar();
        QSignalSpy replays(&shell.model(), &AppModel::welcomeReplayTokenChanged);
        shell.delegate.replayWelcome(shell.model());
        QCOMPARE(shell.mainOpened, 1);
        QCOMPARE(replays.size(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(replays.size(), 1);
        QCOMPARE(shell.model().welcomeReplayToken(), 1);
    }
};

QTEST_MAIN(AppDelegateTest)
#include "AppDelegateTest.moc"
