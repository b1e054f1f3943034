#pragma once

#include "app/window_state.h"

#include <deque>
#include <functional>
#include <map>

namespace Hesperin {

/// The steps that the user has taken and can take back. Hears of all that the user does, compares
/// the window before with the window after, and keeps what was before where something has changed.
class History : public ActListener {
public:
    explicit History(Program& owner) : program(owner) {}

    /// So many steps can be taken back at least.
    static constexpr std::size_t Depth = 250;

    void Begin(const Control& control, Act act) override;
    void End() override;
    void Left() override { edited = nullptr; }

    /// Sets back what was before the last step; nothing when there is none.
    void Undo();

    /// Sets what was there before the last undo; nothing when something else was done since.
    void Redo();

    /// `value` runs after everything that the user does.
    void SetFollower(std::function<void()> value) { follower = std::move(value); }

private:
    struct Step {
        const Control* control; ///< that it began with
        WindowState before;
        WindowState after;
        std::uint32_t creatureBefore; ///< number of the one shown
        std::uint32_t creatureAfter;
    };

    void KeepStep();
    void ForgetFiles();
    void Go(const WindowState& state, std::uint32_t creature);
    void ShowEntries();
    void ShowEntry(MenuEntry& entry, const Control* control, const QString& words);

    Program& program;
    std::deque<Step> done;
    std::vector<Step> undone;
    std::vector<Step> beforeEdit; ///< undone then; comes back when an edit ends where it began
    std::map<std::uint32_t, PackedFilePart> files; ///< by creature, of those that aren't shown

    // Of the act that goes on.
    int depth = 0;
    Act act = Act::Aside;
    const Control* control = nullptr;
    WindowState before;
    FilePart fileBefore;
    std::uint32_t creatureBefore = 0;

    const Control* edited = nullptr; ///< field whose editing is the last step and may go on
    std::function<void()> follower;
};

} // namespace Hesperin
