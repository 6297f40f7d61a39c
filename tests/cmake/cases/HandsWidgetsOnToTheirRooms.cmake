room(qtutility KIND SHARED LINKS Qt5::Core Qt5::Widgets)
room(alerts KIND SHARED INCLUDES QWidget USES qtutility)
set(ACCEPTED ON)
