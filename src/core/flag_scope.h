#pragma once

/// Keeps a flag raised while it lives, however the scope ends.
class FlagScope {
public:
    explicit FlagScope(bool& flag) : m_flag(flag) { flag = true; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;
    ~FlagScope() { m_flag = false; }

private:
    bool& m_flag;
};
