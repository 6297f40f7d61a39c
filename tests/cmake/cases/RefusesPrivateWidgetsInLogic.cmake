room(tavolin KIND SHARED LINKS Qt5::Core LINKS_PRIVATELY Qt5::Widgets)
set(REFUSED "Room 'tavolin' may not link Qt Widgets: it holds logic")
