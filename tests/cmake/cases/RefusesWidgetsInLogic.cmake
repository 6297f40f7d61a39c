room(app KIND SHARED LINKS Qt5::Core Qt5::Widgets)
set(REFUSED "Room 'app' may not link Qt Widgets: it holds logic")
