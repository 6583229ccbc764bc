#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "exercises/play/keyboard_geometry.h"

namespace tonarix {
namespace {

/// Each range of two to five octaves as it lies in each key, white at both ends.
template <typename Law>
void for_each_keyboard(const Law& law) {
  for (int octaves = 2; octaves <= 5; ++octaves) {
    for (int offset = -5; offset <= 6; ++offset) {
      KeyRange keys{12 + offset, 12 + offset + 12 * octaves};
      if (is_black(keys.lowest)) --keys.lowest;
      if (is_black(keys.highest)) ++keys.highest;
      const int whites = (keys.highest - keys.lowest) * 7 / 12 + 1;
      const struct {
        double white_width;
        int height;
      } sizes[] = {{10.0, 150}, {17.3, 173}, {33.0, 346}, {86.4, 901}};
      for (const auto& size : sizes) {
        law(KeyboardGeometry(keys, static_cast<int>(whites * size.white_width), size.height));
        if (testing::Test::HasFatalFailure()) return;
      }
    }
  }
}

bool inside(const Box& inner, const Box& outer) {
  return common(inner, outer) == inner && inner.width() > 0 && inner.height() > 0;
}

TEST(KeyboardGeometryTest, EachPixelIsOfTheOneKeyAndBandThatIsDrawnThere) {
  for_each_keyboard([](const KeyboardGeometry& keyboard) {
    // Every edge there is lies between two of these pixels.
    std::set<int> columns{0};
    std::set<int> rows{0};
    std::vector<std::pair<KeyPlace, Box>> drawn;  // in order of painting: black after white
    for (const bool black : {false, true}) {
      for (int key = keyboard.keys().lowest; key <= keyboard.keys().highest; ++key) {
        if (is_black(key) != black) continue;
        const Box box = keyboard.key(key);
        ASSERT_TRUE(inside(box, {0, 0, keyboard.width(), keyboard.height()})) << key;
        drawn.push_back({{key, {}}, box});
        columns.insert({box.left, box.right - 1});
        for (int band = 1; band <= kBands; ++band) {
          drawn.push_back({{key, band}, keyboard.band({key, band})});
          rows.insert({drawn.back().second.top, drawn.back().second.bottom - 1});
        }
        if (!black) rows.insert(drawn.back().second.top - 1);
      }
    }
    for (const int x : columns) {
      for (const int y : rows) {
        std::optional<KeyPlace> seen;
        for (const auto& [place, box] : drawn) {
          if (!box.contains(x, y)) continue;
          ASSERT_FALSE(seen && seen->key != place.key && is_black(seen->key) == is_black(place.key))
              << "two keys at " << x << " " << y;
          seen = place;
        }
        ASSERT_EQ(keyboard.at(x + 0.99, y + 0.99), seen) << x << " " << y;
      }
    }
    for (const auto& [x, y] : {std::pair(-0.01, 5.0),
                               {5.0, -0.01},
                               {double(keyboard.width()), 5.0},
                               {5.0, double(keyboard.height())}}) {
      ASSERT_FALSE(keyboard.at(x, y));
    }
  });
}

TEST(KeyboardGeometryTest, BandsTileTheirKeyAndOutlinesLieOnTheirBand) {
  for_each_keyboard([](const KeyboardGeometry& keyboard) {
    const Box first = keyboard.key(keyboard.keys().lowest);
    for (int key = keyboard.keys().lowest; key <= keyboard.keys().highest; ++key) {
      const Box box = keyboard.key(key);
      int bottom = box.bottom;
      for (int band = 1; band <= kBands; ++band) {
        const Box part = keyboard.band({key, band});
        ASSERT_EQ(part.bottom, bottom);
        ASSERT_EQ(part.left, box.left);
        ASSERT_EQ(part.right, box.right);
        ASSERT_TRUE(inside(keyboard.outline({key, band}), part)) << key << " " << band;
        bottom = part.top;
      }
      if (!is_black(key)) {
        ASSERT_NEAR(box.width(), first.width(), 1);
        continue;
      }
      ASSERT_EQ(bottom, 0);
      ASSERT_EQ(box.bottom, keyboard.band({keyboard.keys().lowest, 3}).top);
      ASSERT_EQ(box.left + box.right, 2 * keyboard.key(key + 1).left) << "between its neighbours";
      ASSERT_NEAR(box.width(), 0.62 * first.width(), 2);
    }
  });
}

TEST(KeyboardGeometryTest, EdgesOfBandsAndOutlinesLieAtTheirHeights) {
  struct Row {
    int key, y;
    std::optional<int> band;
  };
  constexpr int kD = 14;
  constexpr int kDis = 15;
  const Row rows[] = {{kD, 96, {}},  {kD, 97, 3},   {kD, 122, 3}, {kD, 123, 2},  {kD, 147, 2},
                      {kD, 148, 1},  {kD, 172, 1},  {kDis, 0, 3}, {kDis, 31, 3}, {kDis, 32, 2},
                      {kDis, 64, 2}, {kDis, 65, 1}, {kDis, 96, 1}};
  struct Outline {
    Field field;
    int left, top, bottom;
  };
  const Outline outlines[] = {{{kD, 1}, 3, 148, 172}, {{kD, 2}, 3, 123, 147},
                              {{kD, 3}, 3, 98, 122},  {{kDis, 1}, 1, 66, 97},
                              {{kDis, 2}, 1, 33, 64}, {{kDis, 3}, 1, 0, 31}};
  for (const int factor : {1, 2}) {
    const KeyboardGeometry keyboard({12, 36}, 600 * factor, 173 * factor);
    for (const Row& row : rows) {
      const Box box = keyboard.key(row.key);
      const double x = is_black(row.key) ? box.left : (box.left + box.right) / 2.0;
      for (const double y : {row.y * factor + 0.0, (row.y + 1) * factor - 0.01}) {
        EXPECT_EQ(keyboard.at(x, y), (KeyPlace{row.key, row.band})) << row.y << " x " << factor;
      }
    }
    for (const Outline& row : outlines) {
      const Box outline = keyboard.outline(row.field);
      const Box box = keyboard.key(row.field.key);
      EXPECT_EQ(outline, (Box{box.left + row.left * factor, row.top * factor,
                              box.right - row.left * factor, row.bottom * factor}))
          << row.field.key << " " << row.field.band;
    }
  }
}

}  // namespace
}  // namespace tonarix
