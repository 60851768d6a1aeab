// The classes of lists, for the rooms that make and fill lists themselves.
//
//   auto rows = makeHandle<ObjectList<IZolStoryboardInfoList>>();
//   rows->elements().reserve(count);
//   rows->elements().push_back(std::move(row));   hands the reference over

#ifndef KYDATASTRUCTURE_LISTS_MADE_LISTS_H_
#define KYDATASTRUCTURE_LISTS_MADE_LISTS_H_

#include <type_traits>

#include "lists/list.h"
#include "lists/stores.h"

namespace ZOL {

template <class ListInterface>
using ValueList = List<ListInterface, ZOLTemplateList<typename ListInterface::Element>>;

template <class ListInterface>
using ObjectList =
    List<ListInterface,
         ZOLObjectTemplateList<std::remove_pointer_t<typename ListInterface::Element>>>;

using TextList = List<ZOLPCharList, ZOLStringTemplateList<const char*>>;

// Compiled once, each beside its factory.
extern template class List<ZOLIntList, ZOLTemplateList<int>>;
extern template class List<ZOLLonglongList, ZOLTemplateList<long long>>;
extern template class List<ZOLPCharList, ZOLStringTemplateList<const char*>>;
extern template class List<IZolHighlightInfoList, ZOLObjectTemplateList<IZolHighlightInfo>>;
extern template class List<IZolMusicInfoList, ZOLObjectTemplateList<IZolMusicInfo>>;
extern template class List<IZolSliceItemList, ZOLObjectTemplateList<IZolSliceItem>>;
extern template class List<IZolSmartCutClipInfoList, ZOLObjectTemplateList<IZolSmartCutClipInfo>>;
extern template class List<IZolStoryboardInfoList, ZOLObjectTemplateList<IZolStoryboardInfo>>;
extern template class List<IZolTextInfoList, ZOLObjectTemplateList<IZolTextInfo>>;

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_LISTS_MADE_LISTS_H_
