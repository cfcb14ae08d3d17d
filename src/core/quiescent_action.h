#pragma once

/// An action behind a gesture that waits for a quiet moment of the command processor.
class QuiescentAction {
public:
    QuiescentAction() = default;
    QuiescentAction(const QuiescentAction&) = delete;
    QuiescentAction& operator=(const QuiescentAction&) = delete;
    virtual ~QuiescentAction() = default;
    virtual void run() = 0;
};
