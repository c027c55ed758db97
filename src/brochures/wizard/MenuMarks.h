#pragma once

#include <map>

namespace kavor {

// What the check says of the shared draft, by the place in the wizard's menu where it is mended.
class MenuMarks {
public:
    // Looks at the draft anew.
    void count();
    // How many sentences belong to this entry.
    [[nodiscard]] int missingAt(int button) const;
    // Whether the user is done there. An entry whose step no rule looks at, or that the user has not begun,
    // is neither complete nor incomplete.
    [[nodiscard]] bool isComplete(int button) const;

private:
    std::map<int, int> missing_;
};

} // namespace kavor
