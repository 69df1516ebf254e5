// What every document window of the frame (a transcript or a report) does
// for the File and Edit commands: save, print, copy, select all, and ask
// whether to save before it closes. The frame hands these commands to the
// active window and refreshes its menus when windows change.
#pragma once

#include <QMdiSubWindow>
#include <span>

#include "app/command_table.h"

class QPrinter;

namespace tavi::app {

class CChildFrame : public QMdiSubWindow {
    Q_OBJECT
public:
    explicit CChildFrame(QWidget* parent = nullptr);

    // "Save" (askName false) and "Save As..."; false when nothing was saved.
    virtual bool save(bool askName) = 0;
    virtual void print(QPrinter* printer) = 0;
    virtual void copy() = 0;
    virtual void selectAll() = 0;
    // The right-button menu of the window's view.
    virtual std::span<const MenuEntry> contextTable() const = 0;
    // Before closing: asks whether to save a changed document; false when the
    // person cancels or the save fails. True for a document with no changes.
    virtual bool maybeSave() { return true; }

    // The window closes next without asking again: `maybeSave` was answered
    // already (the frame asks every window before it closes any).
    void closeWithoutAsking() { asked_ = true; }

    // The frame marks the active window: a band in the highlight colour
    // along its frame; the other windows are drawn as the style has them.
    void setMarkedActive(bool active);
    bool markedActive() const { return marked_; }

Q_SIGNALS:
    void contextMenuWanted(QPoint globalPos);
    // Something that decides which commands can be chosen has changed.
    void commandsChanged();

protected:
    void closeEvent(QCloseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    // Called once the window is sure to close.
    virtual void closing() {}

private:
    bool asked_ = false;
    bool marked_ = false;
};

} // namespace tavi::app
