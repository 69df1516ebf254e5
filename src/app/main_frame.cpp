// The frame itself: menus from the command table, command states, windows.
#include "app/main_frame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPrinter>
#include <QStatusBar>
#include <algorithm>
#include <vector>

#include "app/child_frame.h"
#include "app/dialog_polish.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "transcript/transcript_file.h"

namespace tavi::app {
namespace {

// "prompt\ntip" split in two; a command without its own prompt is described
// by its menu text.
std::pair<QString, QString> promptAndTip(const MenuEntry& entry) {
    QString prompt = QString::fromUtf8(entry.prompt);
    if (prompt.isEmpty()) {
        QString text = QString::fromUtf8(entry.text);
        text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
        text.remove(QLatin1Char('&'));
        text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
        if (text.endsWith(QStringLiteral("...")))
            text.chop(3);
        return {text, text};
    }
    const qsizetype nl = prompt.indexOf(QLatin1Char('\n'));
    if (nl < 0)
        return {prompt, prompt};
    return {prompt.left(nl), prompt.mid(nl + 1)};
}

} // namespace

CMainFrame::CMainFrame(CTAVIApp& app) : app_(app), mdi_(new QMdiArea) {
    setObjectName(QStringLiteral("CMainFrame"));
    setWindowTitle(QStringLiteral("TAVI"));
    app_.prompter().setParent(this);
    // Every dialog is widened to its title and given mnemonics as it shows.
    qApp->installEventFilter(new DialogPolish(this));
    mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(mdi_);
    registerCommands();
    buildMenus();
    statusBar()->showMessage(QStringLiteral("Ready"));
    connect(mdi_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* w) {
        if (w)
            current_ = w;
        followActiveWindow();
        updateCommands();
    });
    updateCommands();
    resize(1100, 760);
}

CMainFrame::~CMainFrame() {
    // The windows close after the members are gone: they must not call back.
    disconnect(mdi_, nullptr, this, nullptr);
    for (QMdiSubWindow* w : mdi_->subWindowList())
        disconnect(w, nullptr, this, nullptr);
}

QString CMainFrame::notAvailablePrompt(const QString& prompt) {
    // A prompt that already says why the command is not available stays as it is.
    if (prompt.contains(QStringLiteral("(not available")))
        return prompt;
    return prompt + QStringLiteral(" (not available yet)");
}

QAction* CMainFrame::action(const QString& id) const {
    const auto it = actions_.find(id);
    return it == actions_.end() ? nullptr : it->second;
}

QAction* CMainFrame::action(CommandId id) const {
    const auto it = commandActions_.find(id);
    return it == commandActions_.end() ? nullptr : it->second;
}

void CMainFrame::on(CommandId id, std::function<void()> run, std::function<bool()> enabled) {
    commands_.add(id, std::move(run), std::move(enabled));
}

// A command is offered when it is marked working and has a handler; the
// desktop tests make sure the two agree.
QAction* CMainFrame::makeAction(const MenuEntry& entry) {
    const CommandId command = entry.command;
    const QString id = QString::fromLatin1(commandName(command));
    auto* act = new QAction(QString::fromUtf8(entry.text), this);
    act->setObjectName(id);
    const auto [prompt, tip] = promptAndTip(entry);
    if (*entry.shortcut)
        act->setShortcut(QKeySequence(QString::fromLatin1(entry.shortcut)));
    if (commandStatus(command) == CommandStatus::Working && commands_.has(command)) {
        act->setStatusTip(prompt);
        act->setToolTip(tip);
        connect(act, &QAction::triggered, this, [this, command] {
            updateCommands();
            commands_.run(command);
        });
        commandActions_[command] = act;
    } else {
        act->setStatusTip(notAvailablePrompt(prompt));
        act->setToolTip(notAvailablePrompt(tip));
        act->setEnabled(false);
        act->setProperty("notAvailable", true);
    }
    actions_[id] = act;
    return act;
}

// A menu does not make a disabled command current, so it never says it is
// hovered: the pointer's command is looked up here, so that the prompt of a
// command not available yet shows in the status bar as any other does.
bool CMainFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove)
        if (auto* menu = qobject_cast<QMenu*>(watched))
            if (QAction* a = menu->actionAt(static_cast<QMouseEvent*>(event)->position().toPoint());
                a && !a->isEnabled())
                statusBar()->showMessage(a->statusTip());
    return QMainWindow::eventFilter(watched, event);
}

void CMainFrame::buildMenus() {
    std::vector<QMenu*> open;
    for (const MenuEntry& entry : mainMenuTable()) {
        QMenu* current = open.empty() ? nullptr : open.back();
        switch (entry.kind) {
        case EntryKind::Menu: {
            QMenu* m = current ? current->addMenu(QString::fromUtf8(entry.text))
                               : menuBar()->addMenu(QString::fromUtf8(entry.text));
            m->setToolTipsVisible(true);
            connect(m, &QMenu::hovered, this,
                    [this](QAction* a) { statusBar()->showMessage(a->statusTip()); });
            connect(m, &QMenu::aboutToHide, this,
                    [this] { statusBar()->showMessage(QStringLiteral("Ready")); });
            m->installEventFilter(this);
            open.push_back(m);
            break;
        }
        case EntryKind::EndMenu:
            open.pop_back();
            break;
        case EntryKind::Item:
            current->addAction(makeAction(entry));
            break;
        case EntryKind::Heading: {
            QAction* label = current->addAction(QString::fromUtf8(entry.text));
            label->setObjectName(QString::fromLatin1(entry.name));
            label->setEnabled(false);
            QFont bold = label->font();
            bold.setBold(true);
            label->setFont(bold);
            label->setProperty("heading", true);
            break;
        }
        case EntryKind::Separator:
            current->addSeparator();
            break;
        case EntryKind::RecentFiles:
            recentAnchor_ = current->addSeparator();
            recentAnchor_->setObjectName(QString::fromLatin1(entry.name));
            recentAnchor_->setVisible(false);
            connect(current, &QMenu::aboutToShow, this, &CMainFrame::refreshRecentFiles);
            break;
        }
        if (entry.kind == EntryKind::Menu && QString::fromUtf8(entry.text) == "&Window")
            windowMenu_ = open.back();
        for (QMenu* m : open)
            connect(m, &QMenu::aboutToShow, this, &CMainFrame::updateCommands,
                    Qt::UniqueConnection);
    }
    connect(windowMenu_, &QMenu::aboutToShow, this, &CMainFrame::refreshWindowList);
    refreshRecentFiles();
}

QMenu* CMainFrame::makeContextMenu(std::span<const MenuEntry> table) {
    updateCommands();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuEntry& entry : table) {
        if (entry.kind == EntryKind::Separator) {
            menu->addSeparator();
            continue;
        }
        QAction* target = action(QString::fromLatin1(entryName(entry)));
        QAction* item = menu->addAction(QString::fromUtf8(entry.text));
        item->setObjectName(QString::fromLatin1(entryName(entry)));
        item->setEnabled(target && target->isEnabled());
        if (target) {
            item->setStatusTip(target->statusTip());
            connect(item, &QAction::triggered, target, &QAction::trigger);
        }
    }
    return menu;
}

void CMainFrame::updateCommands() {
    for (auto& [id, act] : commandActions_)
        act->setEnabled(commands_.enabled(id));
    refreshDatabaseMenu();
}

void CMainFrame::refreshRecentFiles() {
    for (QAction* a : recentActions_)
        delete a;
    recentActions_.clear();
    auto* menu = qobject_cast<QMenu*>(recentAnchor_->parent());
    app_.dropMissingRecentFiles();
    const QStringList files = app_.recentFiles();
    QAction* before = nullptr;
    const auto all = menu->actions();
    const auto at = all.indexOf(recentAnchor_);
    if (at + 1 < all.size())
        before = all[at + 1];
    for (qsizetype i = 0; i < files.size(); ++i) {
        auto* a = new QAction(QStringLiteral("&%1 %2").arg(i + 1).arg(files[i]), menu);
        a->setObjectName(QStringLiteral("ID_FILE_MRU_FILE%1").arg(i + 1));
        a->setStatusTip(QStringLiteral("Open this document"));
        const QString path = files[i];
        connect(a, &QAction::triggered, this, [this, path] { openRecentFile(path); });
        menu->insertAction(before, a);
        recentActions_ << a;
    }
    if (files.isEmpty()) {
        auto* a = new QAction(QStringLiteral("Recent File"), menu);
        a->setEnabled(false);
        menu->insertAction(before, a);
        recentActions_ << a;
    }
}

void CMainFrame::refreshWindowList() {
    for (QAction* a : windowActions_)
        delete a;
    windowActions_.clear();
    const auto windows = mdi_->subWindowList();
    if (!windows.isEmpty())
        windowActions_ << windowMenu_->addSeparator();
    for (qsizetype i = 0; i < windows.size(); ++i) {
        QMdiSubWindow* w = windows[i];
        QString title = w->windowTitle();
        title.replace(QStringLiteral("[*]"), QString());
        auto* a = windowMenu_->addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(title));
        a->setCheckable(true);
        a->setChecked(w == currentWindow());
        connect(a, &QAction::triggered, this, [this, w] { mdi_->setActiveSubWindow(w); });
        windowActions_ << a;
    }
}

QMdiSubWindow* CMainFrame::currentWindow() const {
    if (QMdiSubWindow* w = mdi_->currentSubWindow())
        return w;
    return current_ && mdi_->subWindowList().contains(current_.data()) ? current_.data() : nullptr;
}

CChildFrame* CMainFrame::activeChild() const {
    return qobject_cast<CChildFrame*>(currentWindow());
}

CTAVIFrame* CMainFrame::activeTranscriptFrame() const {
    return qobject_cast<CTAVIFrame*>(currentWindow());
}

CReptFrame* CMainFrame::activeReportFrame() const {
    return qobject_cast<CReptFrame*>(currentWindow());
}

QList<CTAVIFrame*> CMainFrame::transcriptFrames() const {
    QList<CTAVIFrame*> frames;
    for (QMdiSubWindow* w : mdi_->subWindowList())
        if (auto* f = qobject_cast<CTAVIFrame*>(w))
            frames << f;
    return frames;
}

QList<CReptFrame*> CMainFrame::reportFrames() const {
    QList<CReptFrame*> frames;
    for (QMdiSubWindow* w : mdi_->subWindowList())
        if (auto* f = qobject_cast<CReptFrame*>(w))
            frames << f;
    return frames;
}

void CMainFrame::placeNewWindow(QMdiSubWindow* window) {
    constexpr int kStep = 28; // the cascade step: a title bar's height
    const QRect area = mdi_->viewport()->rect();
    const QSize size = (area.size() * 0.8).expandedTo(QSize(320, 200)).boundedTo(area.size());
    const int room =
        std::max(0, std::min(area.width() - size.width(), area.height() - size.height()));
    const int steps = room / kStep + 1;
    const int others = static_cast<int>(mdi_->subWindowList().size()) - 1;
    const int offset = static_cast<int>((std::max(0, others) % steps)) * kStep;
    window->setGeometry(QRect(area.topLeft() + QPoint(offset, offset), size));
}

// Every document window: its context menu, and the menus refreshed when
// what they depend on changes.
void CMainFrame::addFrame(CChildFrame* frame) {
    mdi_->addSubWindow(frame);
    connect(frame, &QObject::destroyed, this, &CMainFrame::updateCommands, Qt::QueuedConnection);
    connect(frame, &CChildFrame::commandsChanged, this, &CMainFrame::updateCommands);
    connect(frame, &CChildFrame::contextMenuWanted, this,
            [this, frame](QPoint at) { makeContextMenu(frame->contextTable())->popup(at); });
    placeNewWindow(frame);
    frame->show();
    mdi_->setActiveSubWindow(frame);
    current_ = frame;
    updateCommands();
}

CTAVIFrame* CMainFrame::newTranscript(const QString& text) {
    auto* doc = new CTAVIDoc(app_, ++untitledCount_);
    auto* frame = new CTAVIFrame(doc);
    addFrame(frame);
    applyFonts();
    if (!text.isEmpty()) {
        doc->setComposedText(text);
        frame->view().moveCursor(QTextCursor::End);
    }
    return frame;
}

CTAVIFrame* CMainFrame::openTranscript(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    for (CTAVIFrame* f : transcriptFrames())
        if (f->doc().path() == absolute) {
            mdi_->setActiveSubWindow(f);
            return f;
        }
    CTAVIFrame* frame = newTranscript(QString());
    --untitledCount_;
    QString error;
    if (!frame->load(absolute, error)) {
        frame->close();
        app_.prompter().inform(error.toStdString());
        return nullptr;
    }
    return frame;
}

CReptFrame* CMainFrame::showReport(ReportContent content, CTAVIDoc* source) {
    auto* doc = new CReptDoc(std::move(content), source);
    auto* frame = new CReptFrame(doc, app_, [this] { return pdfLayout(); });
    addFrame(frame);
    applyFonts();
    return frame;
}

// Every changed document is offered for saving before any window closes;
// one "Cancel" keeps them all open.
void CMainFrame::closeEvent(QCloseEvent* e) {
    QList<CChildFrame*> children;
    for (QMdiSubWindow* w : mdi_->subWindowList())
        if (auto* child = qobject_cast<CChildFrame*>(w))
            children << child;
    for (CChildFrame* child : children)
        if (!child->maybeSave()) {
            e->ignore();
            return;
        }
    saveLayout();
    for (CChildFrame* child : children)
        child->closeWithoutAsking();
    mdi_->closeAllSubWindows();
    e->accept();
}

void CMainFrame::closeAll(bool reportsOnly) {
    if (reportsOnly) {
        for (CReptFrame* f : reportFrames())
            f->close();
        return;
    }
    mdi_->closeAllSubWindows();
}

} // namespace tavi::app
