room(qtutility KIND SHARED HEADER zenvora/qtutility/Questions.h LINKS Qt5::Core Qt5::Widgets)
room(host_base KIND STATIC INCLUDES QWidget USES qtutility)
set(UNBUILT "QWidget")
