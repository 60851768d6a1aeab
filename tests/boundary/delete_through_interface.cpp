// Compiles without DELETE_THROUGH_INTERFACE and must not compile with it.

#include <KyDataStructure/KyDataStructure.h>

void end(ZOL::IZolString* text, ZOL::ZOLIntList* list, ZOL::IZolMediaData* media) {
  text->release();
  list->release();
  media->release();
#if defined(DELETE_THROUGH_INTERFACE)
  delete DELETE_THROUGH_INTERFACE;
#endif
}
