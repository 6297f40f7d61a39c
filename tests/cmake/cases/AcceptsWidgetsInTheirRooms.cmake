room(qtutility KIND SHARED LINKS Qt5::Core Qt5::Widgets)
room(gui KIND PROGRAM LINKS_PRIVATELY Qt5::Widgets)
set(ACCEPTED ON)
