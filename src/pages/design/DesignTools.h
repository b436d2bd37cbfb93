// The tools of the Design page: Command1 to Command14.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "shell/Control.h"

namespace quilm {

struct DesignView;

inline constexpr int nearest5Tool = 1;
inline constexpr int specifyInductorTool = 2;
inline constexpr int reversalTool = 3;
inline constexpr int singlyTerminatedTool = 4;
inline constexpr int diplexerTool = 5;
inline constexpr int tubularTool = 6;
inline constexpr int matchTool = 7;
inline constexpr int windTool = 8;
inline constexpr int findTool = 9;
inline constexpr int bisectionTool = 10;
inline constexpr int endSectionsTool = 11;
inline constexpr int toroidTool = 12;
inline constexpr int nortonTool = 13;
inline constexpr int teeToPiTool = 14;

class DesignTools {
 public:
  explicit DesignTools(Page& page);

  // Makes tool `number` (1..14) usable. The others stay off: their pages are not in the directory.
  void Offer(int number, std::function<void()> onClick);

  // Shows the tools that some topologies offer only. They stand last, so that their place is no hole.
  void Show(const DesignView& view);

  const std::vector<std::unique_ptr<Button>>& Buttons() const { return buttons_; }

 private:
  Button& Tool(int number) { return *buttons_[static_cast<std::size_t>(number - 1)]; }

  std::vector<std::unique_ptr<Button>> buttons_;
};

}  // namespace quilm
