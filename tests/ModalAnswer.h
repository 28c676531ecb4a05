// SPDX-License-Identifier: GPL-3.0-or-later
// Answers a modal dialog that a widget opens with exec(), from inside that dialog's event loop.
#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class ModalAnswer
{
public:
    // Runs `answer` on the first modal dialog shown after this call (checked every 10 ms for up
    // to 5 s), then stops watching. seen() tells whether a dialog came.
    explicit ModalAnswer(std::function<void(QWidget *)> answer)
        : m_state(std::make_shared<State>())
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [this, answer = std::move(answer)] {
            if (++m_state->ticks > 500) {
                m_timer.stop();
                return;
            }
            QWidget *modal = QApplication::activeModalWidget();
            if (!modal || !modal->isVisible())
                return;
            m_timer.stop();
            m_state->seen = true;
            m_state->title = modal->windowTitle();
            answer(modal);
        });
        m_timer.start();
    }

    bool seen() const { return m_state->seen; }
    QString title() const { return m_state->title; }

private:
    struct State
    {
        int ticks = 0;
        bool seen = false;
        QString title;
    };
    std::shared_ptr<State> m_state;
    QTimer m_timer;
};
