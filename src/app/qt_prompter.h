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
    explicit QtProgress(QWidget* parent = nullptr) : parent_(parent) {}
    ~QtProgress() override;

    void start(int total, std::string_view caption) override;
    void step() override;
    void finish() override;

private:
    QPointer<QWidget> parent_;
    QProgressDialog* dialog_ = nullptr;
    int done_ = 0;
};

} // namespace tavi::app
