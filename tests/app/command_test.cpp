// The command list, the menus and the frame's handlers held to each other,
// and `tavi-gui --commands` run as a person would run it, with no display.
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <map>
#include <set>

#include "app/command_registry.h"
#include "app/command_table.h"
#include "app_fixture.h"

namespace tavi::app::test {
namespace {

// A menu text as shown, without its mnemonic markers.
QString shown(QString text) {
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(QLatin1Char('&'));
    text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
    return text;
}

// The path of every command action of the real menu bar, by object name.
void collectPaths(QMenu* menu, const QString& prefix, std::map<QString, QString>& paths) {
    for (QAction* a : menu->actions()) {
        if (a->menu()) {
            collectPaths(a->menu(), prefix + shown(a->text()) + QStringLiteral(" > "), paths);
            continue;
        }
        if (a->objectName().startsWith(QLatin1String("ID_")) && !a->property("heading").toBool() &&
            !a->isSeparator())
            paths[a->objectName()] = prefix + shown(a->text());
    }
}

using CommandTest = AppTest;

TEST_F(CommandTest, EveryCommandIsInTheMainMenuOnceAndHasAHandlerExactlyWhenMarkedWorking) {
    std::map<CommandId, int> seen;
    for (const MenuEntry& e : mainMenuTable())
        if (e.kind == EntryKind::Item)
            ++seen[e.command];
    for (CommandId id : allCommands())
        EXPECT_EQ(seen[id], 1) << commandName(id) << " in the main menu";
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(kCommandCount));

    std::vector<std::string> expected;
    EXPECT_EQ(frame->commands().mismatches(), expected);

    for (CommandId id : allCommands()) {
        QAction* a = action(commandName(id));
        ASSERT_NE(a, nullptr) << commandName(id);
        const bool working = commandStatus(id) == CommandStatus::Working;
        EXPECT_EQ(a->property("notAvailable").toBool(), !working) << commandName(id);
        EXPECT_EQ(frame->action(id) != nullptr, working) << commandName(id);
        EXPECT_EQ(commandByName(commandName(id)), id);
    }
    EXPECT_EQ(commandByName("ID_NO_SUCH_COMMAND"), std::nullopt);
}

TEST(CommandRegistry, ReportsMissingSurplusAndDoubledHandlersAndRunsOnlyWhenEnabled) {
    CommandRegistry registry;
    int runs = 0;
    bool open = false;
    registry.add(CommandId::ID_FILE_NEW, [&] { ++runs; });
    registry.add(CommandId::ID_FILE_NEW, [&] { runs += 100; });
    registry.add(CommandId::ID_FILE_IMPORT_CP, [] {});
    registry.add(
        CommandId::ID_FILE_CLOSE, [&] { ++runs; }, [&] { return open; });

    const std::vector<std::string> found = registry.mismatches();
    auto has = [&](const std::string& line) {
        return std::find(found.begin(), found.end(), line) != found.end();
    };
    EXPECT_TRUE(has("ID_FILE_OPEN is marked working but has no handler"));
    EXPECT_TRUE(has("ID_FILE_IMPORT_CP has a handler but is marked unavailable"));
    EXPECT_TRUE(has("ID_FILE_NEW has more than one handler"));
    EXPECT_FALSE(has("ID_FILE_NEW is marked working but has no handler"));
    EXPECT_FALSE(has("ID_EDIT_DELETE_CODE has a handler but is marked unavailable"));

    EXPECT_TRUE(registry.run(CommandId::ID_FILE_NEW));
    EXPECT_EQ(runs, 1) << "the first handler stays";
    EXPECT_FALSE(registry.run(CommandId::ID_FILE_CLOSE));
    EXPECT_FALSE(registry.run(CommandId::ID_FILE_OPEN));
    open = true;
    EXPECT_TRUE(registry.run(CommandId::ID_FILE_CLOSE));
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(registry.registered(),
              (std::vector<CommandId>{CommandId::ID_FILE_NEW, CommandId::ID_FILE_IMPORT_CP,
                                      CommandId::ID_FILE_CLOSE}));
}

TEST(MenuText, MnemonicMarkersAreDroppedAndDoubledAmpersandsKept) {
    EXPECT_EQ(plainMenuText("&File"), "File");
    EXPECT_EQ(plainMenuText("C&P CORPUS file"), "CP CORPUS file");
    EXPECT_EQ(plainMenuText("Transcripts && Reports - &Printed"),
              "Transcripts & Reports - Printed");
    EXPECT_EQ(plainMenuText("Explore &Words && Codes..."), "Explore Words & Codes...");
    EXPECT_EQ(plainMenuText("Undo"), "Undo");
}

// Runs the built program with no display and no platform named.
TEST_F(CommandTest, CommandsOptionListsEveryMenuCommandWithoutADisplay) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(TAVI_GUI_BINARY), {QStringLiteral("--commands")});
    ASSERT_TRUE(p.waitForFinished(30000));
    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    const QString out = QString::fromUtf8(p.readAllStandardOutput());
    ASSERT_TRUE(out.endsWith(QLatin1Char('\n')));
    const QStringList lines = out.chopped(1).split(QLatin1Char('\n'));

    std::map<QString, QString> menuPaths;
    for (QAction* top : frame->menuBar()->actions())
        collectPaths(top->menu(), shown(top->text()) + QStringLiteral(" > "), menuPaths);

    const QRegularExpression format(
        QStringLiteral("^(ID_[A-Z0-9_]+)\\t([^\\t]+)\\t(working|unavailable)$"));
    std::set<QString> ids;
    int working = 0;
    for (const QString& line : lines) {
        const QRegularExpressionMatch m = format.match(line);
        ASSERT_TRUE(m.hasMatch()) << line.toStdString();
        const QString id = m.captured(1);
        EXPECT_TRUE(ids.insert(id).second) << "listed twice: " << id.toStdString();
        const std::optional<CommandId> command = commandByName(id.toStdString());
        ASSERT_TRUE(command) << id.toStdString();
        EXPECT_EQ(m.captured(2), menuPaths[id]) << "the path the menu bar shows";
        if (m.captured(3) == QLatin1String("working")) {
            ++working;
            EXPECT_TRUE(frame->commands().has(*command)) << id.toStdString() << " has no handler";
            EXPECT_NE(frame->action(*command), nullptr);
        } else {
            EXPECT_FALSE(frame->commands().has(*command)) << id.toStdString();
        }
    }
    EXPECT_EQ(ids.size(), static_cast<std::size_t>(kCommandCount));
    EXPECT_EQ(ids.size(), menuPaths.size());
    EXPECT_GT(working, 0);
    EXPECT_TRUE(
        lines.contains(QStringLiteral("ID_FILE_IMPORT_CHAT\tFile > Import > CHAT file\tworking")));
    EXPECT_TRUE(lines.contains(
        QStringLiteral("ID_FILE_IMPORT_CP\tFile > Import > CP CORPUS file\tunavailable")));
    EXPECT_TRUE(lines.contains(QStringLiteral("ID_FILE_NEW\tFile > New\tworking")));
    EXPECT_TRUE(lines.contains(
        QStringLiteral("ID_FONT_PRT\tSetup > Fonts > Transcripts & Reports - Printed\tworking")));
}

} // namespace
} // namespace tavi::app::test
