room(qtutility KIND SHARED HEADER zenvora/qtutility/Questions.h LINKS Qt5::Core Qt5::Widgets)
room(host KIND STATIC INCLUDES zenvora/qtutility/Questions.h USES qtutility)
room(cli KIND PROGRAM INCLUDES zenvora/qtutility/Questions.h USES_PRIVATELY host)
set(ACCEPTED ON)
