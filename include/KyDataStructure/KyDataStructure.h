/// \file
/// All of KyDataStructure.

#ifndef KYDATASTRUCTURE_KYDATASTRUCTURE_H_
#define KYDATASTRUCTURE_KYDATASTRUCTURE_H_

#include <KyDataStructure/cutscript.h>
#include <KyDataStructure/frame.h>
#include <KyDataStructure/lists.h>
#include <KyDataStructure/media.h>
#include <KyDataStructure/params.h>
#include <KyDataStructure/resource.h>
#include <KyDataStructure/search.h>

#endif  // KYDATASTRUCTURE_KYDATASTRUCTURE_H_
