// Thousands of random operations, after each handful of which the frame must be, byte for byte,
// what a plain model composes from nothing.

#include "tests/board/Canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace veltrix::test {
namespace {

/// What a sprite or group was told, without any memory of what was painted.
struct Thing {
    std::int32_t number = 0;
    bool group = false;
    std::size_t bitmap = 0; ///< a place in the model's pictures
    std::size_t mask = 0;   ///< the same; 0 for none
    Rect place;
    Point source;
    std::int32_t level = 0;
    std::int32_t state = spriteState::Shown;
    std::int32_t parent = 0;
};

/// Things in the order in which they were made, and pictures.
class Model {
public:
    [[nodiscard]] Picture Compose() const {
        Picture frame = plain(Canvas::width, Canvas::height, nothing);
        compose(frame, 0, {});
        return frame;
    }

    Thing* Find(std::int32_t number) {
        const auto found = std::find_if(things.begin(), things.end(),
                                        [&](const Thing& t) { return t.number == number; });
        return found == things.end() ? nullptr : &*found;
    }

    void Delete(std::int32_t number) {
        Clear(number);
        things.erase(std::remove_if(things.begin(), things.end(),
                                    [&](const Thing& t) { return t.number == number; }),
                     things.end());
    }

    void Clear(std::int32_t parent) {
        for (;;) {
            const auto child = std::find_if(things.begin(), things.end(),
                                            [&](const Thing& t) { return t.parent == parent; });
            if (child == things.end())
                return;
            Delete(child->number);
        }
    }

    [[nodiscard]] bool IsAncestor(std::int32_t number, std::int32_t of) {
        for (; of != 0; of = Find(of)->parent)
            if (of == number)
                return true;
        return false;
    }

    std::vector<Thing> things;
    std::vector<Picture> pictures{Picture{}};

private:
    void compose(Picture& frame, std::int32_t parent, Point origin) const {
        std::vector<const Thing*> children;
        for (const Thing& thing : things)
            if (thing.parent == parent && thing.state == spriteState::Shown)
                children.push_back(&thing);
        std::stable_sort(children.begin(), children.end(),
                         [](const Thing* a, const Thing* b) { return a->level < b->level; });
        for (const Thing* child : children) {
            const Point at{origin.x + child->place.x, origin.y + child->place.y};
            if (!child->group)
                draw(frame, *child, at);
            compose(frame, child->number, at);
        }
    }

    void draw(Picture& frame, const Thing& thing, Point at) const {
        const Picture& picture = pictures[thing.bitmap];
        for (std::int32_t y = 0; y < thing.place.height; ++y)
            for (std::int32_t x = 0; x < thing.place.width; ++x) {
                const Point in{x + thing.source.x, y + thing.source.y};
                const Point out{x + at.x, y + at.y};
                if (!holds(picture, in) || !holds(frame, out))
                    continue;
                const std::uint32_t above = picture.Row(in.y)[in.x];
                std::uint32_t alpha = above >> 24;
                if (thing.mask != 0) {
                    const Picture& mask = pictures[thing.mask];
                    if (!holds(mask, in))
                        continue;
                    alpha = (alpha * (mask.Row(in.y)[in.x] & 0xFF) + 127) / 255;
                }
                std::uint32_t& below = frame.Row(out.y)[out.x];
                std::uint32_t mixed = 0xFF;
                for (const int shift : {16, 8, 0})
                    mixed = mixed << 8 | ((above >> shift & 0xFF) * alpha +
                                          (below >> shift & 0xFF) * (255 - alpha) + 127) /
                                             255;
                below = mixed;
            }
    }

    static bool holds(const Picture& picture, Point point) {
        return point.x >= 0 && point.y >= 0 && point.x < picture.width && point.y < picture.height;
    }
};

/// Where two frames differ first, counted from 1; (0, 0) when they are equal.
Point firstDifference(const Picture& a, const Picture& b) {
    if (a.width != b.width || a.height != b.height)
        return {-1, -1};
    for (std::int32_t y = 0; y < a.height; ++y)
        for (std::int32_t x = 0; x < a.width; ++x)
            if (a.Row(y)[x] != b.Row(y)[x])
                return {x + 1, y + 1};
    return {};
}

/// Does everything at random to a surface that refreshes what changed, to a second one that paints
/// all anew every time, and to the model.
class Play {
public:
    Play(std::uint32_t seed, double scale) : random_(seed), surface_(scale), anew_(scale) {
        const std::uint32_t colours[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFF00,
                                         0x80FFFFFF};
        for (const std::uint32_t colour : colours) {
            Picture picture = plain(8, 6, colour);
            for (std::uint32_t& pixel : picture.pixels)
                pixel ^= static_cast<std::uint32_t>(random_() & 0x3F3F3F);
            load(picture);
        }
        load(plain(20, 5, 0xFF808080)); // four frames
        firstMask_ = model_.pictures.size();
        for (const std::uint32_t grey : {0xFFFFFFFFU, 0xFF808080U, 0xFF000000U}) {
            Picture mask = plain(7, 7, grey);
            mask.Row(2)[3] = 0xFF404040;
            load(mask);
        }
    }

    void Step() {
        for (int operations = upTo(5); operations >= 0; --operations)
            operate();
        const Picture before = surface_.surface.Frame();
        surface_.surface.Refresh();
        anew_.surface.Restart(anew_.surface.Scale());
        anew_.surface.Refresh();
        const Picture& frame = surface_.surface.Frame();
        ASSERT_EQ(firstDifference(frame, anew_.surface.Frame()), Point{});
        if (surface_.surface.Scale() == 1) {
            ASSERT_EQ(firstDifference(frame, model_.Compose()), Point{});
        }
        checkChanged(before, frame);
        ASSERT_EQ(surface_.surface.CountAll(), static_cast<std::int32_t>(model_.things.size()));
    }

private:
    void checkChanged(const Picture& before, const Picture& frame) {
        const std::vector<Rect>& changed = surface_.surface.Changed();
        std::vector<int> painted(frame.pixels.size());
        for (const Rect& rect : changed) {
            ASSERT_EQ(rect, rect.Intersected({0, 0, frame.width, frame.height}));
            for (std::int32_t y = rect.y; y < rect.y + rect.height; ++y)
                for (std::int32_t x = rect.x; x < rect.x + rect.width; ++x)
                    ++painted[static_cast<std::size_t>(y * frame.width + x)];
        }
        for (std::size_t i = 0; i < painted.size(); ++i) {
            ASSERT_LE(painted[i], 1) << "a pixel is painted twice";
            ASSERT_TRUE(painted[i] == 1 || before.pixels[i] == frame.pixels[i])
                << "a pixel outside the changed rectangles changed";
        }
    }

    int upTo(int most) {
        return static_cast<int>(random_() % (static_cast<std::uint64_t>(most) + 1));
    }

    void load(const Picture& picture) {
        model_.pictures.push_back(picture);
        const std::int32_t bitmap = surface_.bitmap(picture);
        ASSERT_EQ(bitmap, anew_.bitmap(picture));
        bitmaps_.push_back(bitmap);
    }

    template <typename Operation>
    void both(Operation operation) {
        operation(surface_.surface);
        operation(anew_.surface);
    }

    Thing* any() {
        if (model_.things.empty())
            return nullptr;
        return &model_.things[static_cast<std::size_t>(
            upTo(static_cast<int>(model_.things.size()) - 1))];
    }

    /// Makes a thing on both surfaces and in the model as `wanted` says; its number is new.
    std::int32_t make(Thing wanted) {
        std::int32_t numbers[2] = {};
        int at = 0;
        both([&](PictorATL& surface) {
            const std::int32_t bitmap = bitmaps_[wanted.bitmap];
            const std::int32_t number =
                wanted.group       ? surface.NewGroup()
                : wanted.mask != 0 ? surface.CreateMaskedSprite(bitmap, bitmaps_[wanted.mask])
                                   : surface.CreateSprite(bitmap);
            surface.PlaceSprite(number, wanted.place.x, wanted.place.y);
            surface.SetSpriteSize(number, wanted.place.width, wanted.place.height);
            surface.SetSpriteSource(number, wanted.source.x, wanted.source.y);
            surface.SetLevel(number, wanted.level);
            surface.SetSpriteState(number, wanted.state);
            surface.AddToGroup(number, wanted.parent);
            numbers[at++] = number;
        });
        EXPECT_EQ(numbers[0], numbers[1]);
        wanted.number = numbers[0];
        model_.things.push_back(wanted);
        return wanted.number;
    }

    void makeAny() {
        if (model_.things.size() > 24)
            return;
        Thing wanted;
        wanted.group = upTo(3) == 0;
        if (!wanted.group) {
            const auto picture = static_cast<std::size_t>(1 + upTo(5));
            wanted.bitmap = picture;
            wanted.mask = upTo(2) == 0 ? firstMask_ + static_cast<std::size_t>(upTo(2)) : 0;
            wanted.place.width = model_.pictures[picture].width;
            wanted.place.height = model_.pictures[picture].height;
        }
        wanted.place.x = 3 * upTo(10) - 2;
        wanted.place.y = 3 * upTo(7) - 2;
        const Thing* parent = any();
        wanted.parent = parent != nullptr && upTo(1) == 0 ? parent->number : 0;
        make(wanted);
    }

    void destroy(std::int32_t number) {
        both([&](PictorATL& surface) { surface.DeleteSprite(number); });
        model_.Delete(number);
    }

    /// Deletes a few things with all that is attached to them, and makes them again alike, in their
    /// old order or in another one.
    void makeAgain() {
        std::vector<Thing> gone;
        for (int count = 1 + upTo(3); count > 0; --count) {
            const Thing* chosen = any();
            if (chosen == nullptr)
                break;
            for (const Thing& thing : model_.things)
                if (model_.IsAncestor(chosen->number, thing.number))
                    gone.push_back(thing);
            destroy(chosen->number);
        }
        if (upTo(3) == 0)
            std::reverse(gone.begin(), gone.end());
        for (Thing& thing : gone) {
            const std::int32_t old = thing.number;
            if (model_.Find(thing.parent) == nullptr)
                thing.parent = 0;
            const std::int32_t fresh = make(thing);
            for (Thing& other : gone)
                if (other.parent == old)
                    other.parent = fresh;
        }
    }

    /// Clears a group and fills it alike, as a wire does that is drawn anew.
    void fillAgain() {
        const Thing* chosen = any();
        if (chosen == nullptr)
            return;
        const std::int32_t group = chosen->number;
        std::vector<Thing> children;
        for (const Thing& thing : model_.things)
            if (thing.parent == group)
                children.push_back(thing);
        both([&](PictorATL& surface) { surface.ClearGroup(group); });
        model_.Clear(group);
        if (upTo(5) == 0)
            change(*model_.Find(group));
        for (const Thing& child : children)
            make(child);
    }

    void change(Thing& thing) {
        const std::int32_t number = thing.number;
        switch (upTo(5)) {
        case 0:
            thing.place.x = 3 * upTo(12) - 5;
            thing.place.y = 3 * upTo(9) - 5;
            both([&](PictorATL& s) { s.PlaceSprite(number, thing.place.x, thing.place.y); });
            break;
        case 1:
            if (thing.group)
                break;
            thing.place.width = upTo(10);
            thing.place.height = upTo(10);
            both([&](PictorATL& s) {
                s.SetSpriteSize(number, thing.place.width, thing.place.height);
            });
            break;
        case 2:
            thing.source = {5 * upTo(3) - 2, upTo(3) - 1};
            both([&](PictorATL& s) { s.SetSpriteSource(number, thing.source.x, thing.source.y); });
            break;
        case 3:
            thing.level = upTo(2) - 1;
            both([&](PictorATL& s) { s.SetLevel(number, thing.level); });
            break;
        case 4:
            thing.state = upTo(2) == 0 ? spriteState::Hidden : spriteState::Shown;
            both([&](PictorATL& s) { s.SetSpriteState(number, thing.state); });
            break;
        default: {
            const Thing* parent = any();
            both([&](PictorATL& s) { s.AddToGroup(number, parent->number); });
            if (!model_.IsAncestor(number, parent->number))
                thing.parent = parent->number;
            break;
        }
        }
    }

    void setPixel() {
        const auto picture = static_cast<std::size_t>(1 + upTo(8));
        const std::int32_t x = upTo(20);
        const std::int32_t y = upTo(6);
        const auto colour = static_cast<std::int32_t>(random_() & 0xFFFFFF);
        both([&](PictorATL& s) { s.SetBitmapPixel(bitmaps_[picture], x, y, colour); });
        Picture& edited = model_.pictures[picture];
        if (x < edited.width && y < edited.height)
            edited.Row(y)[x] = 0xFF000000U | static_cast<std::uint32_t>(colour);
    }

    void operate() {
        const int choice = upTo(19);
        Thing* thing = any();
        if (choice < 3 || thing == nullptr)
            makeAny();
        else if (choice < 11)
            change(*thing);
        else if (choice < 14)
            makeAgain();
        else if (choice < 17)
            fillAgain();
        else if (choice == 17)
            destroy(thing->number);
        else if (choice == 18)
            setPixel();
        else
            both([&](PictorATL& s) { s.RedrawSprite(thing->number); });
    }

    std::mt19937 random_;
    Canvas surface_;
    Canvas anew_;
    Model model_;
    std::vector<std::int32_t> bitmaps_{0};
    std::size_t firstMask_ = 0;
};

class FrameComposerOracle : public testing::TestWithParam<double> {};

TEST_P(FrameComposerOracle, WhatIsRefreshedLooksLikeWhatIsPaintedAnew) {
    for (const std::uint32_t seed : {1U, 2U, 3U}) {
        Play play(seed, GetParam());
        for (int step = 0; step < 1000; ++step) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
            ASSERT_NO_FATAL_FAILURE(play.Step());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AtEveryScale, FrameComposerOracle, testing::Values(1.0, 1.25, 2.0));

} // namespace
} // namespace veltrix::test
