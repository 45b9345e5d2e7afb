#pragma once

#include <QDialog>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "base/export.h"
#include "qt/map/map_block.h"

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace kv::qt {

class BlockMapCanvas;

/// Lets the user pick blocks on a map of them: by clicks, each of which picks a block or takes it
/// out again, and by a rubber band, which picks all blocks whose middle it holds, or with Ctrl
/// takes them out.
///
/// The map is moved with the right or the middle mouse button and with the arrow keys, and zoomed
/// by the wheel and by "+" and "-"; "Home" shows all of it, and the list of areas brings up one.
class KVGUICTL_API BlockMapWindow : public QDialog {
public:
    explicit BlockMapWindow(std::vector<MapBlock> blocks, QWidget* parent = nullptr);
    ~BlockMapWindow() override;

    const std::vector<MapBlock>& Blocks() const;
    /// Numbers of the blocks that are picked, in the order in which they were.
    const std::vector<std::size_t>& Picks() const;
    /// The picks as the caller of a map expects them: two fields that are the map's own, the word
    /// "BLOCKS" and how many there are, then area, block and extension of each, a comma behind
    /// every field.
    std::string PicksText() const;

private:
    QWidget* MakeTools();
    QWidget* MakePickList();
    void ShowPicks();
    void ShowHovered();
    void TakeOutMarked();

    BlockMapCanvas* canvas_;
    QListWidget* list_ = nullptr;
    QLabel* count_ = nullptr;
    QLabel* hovered_ = nullptr;
    QPushButton* takeOut_ = nullptr;
    QPushButton* clear_ = nullptr;
    QPushButton* ok_ = nullptr;
};

/// Shows the window over the one in front, modally. Answers the picks as text; an empty text where
/// the user cancelled.
KVGUICTL_API std::string PickBlocksOnMap(std::vector<MapBlock> blocks);

}  // namespace kv::qt
