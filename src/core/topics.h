#pragma once

namespace sarne {

/// What the items of a topic's menu open. A topic's number is the index of its button on the main screen.
enum class TopicKind {
    none,      ///< no topic
    results,   ///< the recipes with an ingredient that was found; the button itself ends the program
    submenus,  ///< levels below levels; the last has the recipes and the quick recipes
    lists,     ///< lists of recipes at once
    gallery,   ///< the picture gallery of the topic
    tables,    ///< the manual, then look-up tables
    photos,    ///< the slide show, the photo grid
    search,    ///< the level where an ingredient is typed
    videos,    ///< a video, by number
    music      ///< no menu: the settings at once
};

inline constexpr int kTopics = 19;

/// The kind of \a topic; `none` for a number that no button has.
constexpr TopicKind topicKind(int topic) {
    using enum TopicKind;
    constexpr TopicKind kKinds[kTopics] = {
        results, gallery,  submenus, lists,   tables,   submenus, lists,    music,    submenus, gallery,
        photos,  submenus, search,   gallery, submenus, lists,    submenus, submenus, videos};
    return topic >= 0 && topic < kTopics ? kKinds[topic] : none;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
