// The desktop program's answer to the core's prompt and progress interfaces:
// message boxes and a progress dialog, titled "TAVI".
#pragma once

#include <QPointer>
#include <QProgressDialog>
#include <QWidget>

#include "base/progress.h"
#include "base/prompter.h"

namespace tavi::app {

class QtPrompter final : public Prompter {
public:
    explicit QtPrompter(QWidget* parent = nullptr) : parent_(parent) {}
    void setParent(QWidget* parent) { parent_ = parent; }

    void inform(std::string_view text) override;
    Answer ask(std::string_view text) override;
    bool confirm(std::string_view text) override;

private:
    QPointer<QWidget> parent_;
};

class QtProgress final : public Progress {
public:
    // A cancellable progress shows a Cancel button and lets the person press
    // it between steps.
    explicit QtProgress(QWidget* parent = nullptr, bool cancellable = false)
        : parent_(parent), cancellable_(cancellable) {}
    ~QtProgress() override;

    void start(int total, std::string_view caption) override;
    void step() override;
    void finish() override;
    bool cancelled() override { return cancelled_; }
    // The dialog while the work runs (tests press its Cancel button).
    QProgressDialog* dialog() const { return dialog_; }

private:
    QPointer<QWidget> parent_;
    bool cancellable_ = false;
    bool cancelled_ = false;
    QProgressDialog* dialog_ = nullptr;
    int done_ = 0;
};

} // namespace tavi::app
