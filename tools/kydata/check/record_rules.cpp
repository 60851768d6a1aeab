// The complete form: the records of four kinds of providers, told by the info type.

#include "check/form.h"
#include "check/made.h"
#include "info_types.h"

namespace kydata::check {

namespace {

const Form& ownRecordForm() {
  static const Form form = {
      "record",
      "record of a resource",
      "The full record of a resource of the house, as info types 6 and 7 read it.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A record.",
           "a resource's record is an object", Look::none, Members::ofAProvider},
          {"name|slug", Type::text, Missing::fine, Effect::ignored,
           "The slug; where both are there, \"slug\" counts.", "it gives no slug",
           Look::propertyText},
          {"res_type|type", Type::integer64, Missing::fine, Effect::ignored,
           "The resource type; where both are there, \"type\" counts.",
           "it gives no resource type"},
          {"res_sub_type", Type::integer64, Missing::fine, Effect::ignored,
           "The type within the resource type.", "it gives no sub-type"},
          {"element_sub_type", Type::integer64, Missing::fine, Effect::ignored,
           "The type within the resource type, ahead of \"res_sub_type\", and the sub-type of a "
           "plug-in.",
           "it gives neither sub-type"},
          {"infoType", Type::integer64, Missing::fine, Effect::ignored,
           "Takes the place of the info type that the caller names.",
           "the caller's info type stays"},
          {"<number>", Type::integer64, Missing::fine, Effect::ignored,
           "A property that is an integer.", "the property is not held"},
          {"<text>", Type::text, Missing::fine, Effect::ignored, "A property that is a text.",
           "the property is not held", Look::propertyText},
          {"pack_id", Type::text, Missing::fine, Effect::ignored,
           "Kept as a text, which does not count as the id that a resource of a pack must have.",
           "the property is not held", Look::propertyText},
          {"pack_name", Type::text, Missing::fine, Effect::ignored, "The slug of the pack.",
           "the property is not held", Look::propertyText},
          {"<group>", Type::unread, Missing::fine, Effect::none,
           "Never read: the groups belong to the normal form.",
           "a group is never read in the complete form"},
      },
      {
          {"number",
           "id|is_custom|smart_resource|res_media_size|mediaType|resource_origin_id|resourceRate|"
           "related_template_type|sale_mode|source|resourceState"},
          {"text",
           "vcg_media_path|currentLimitSize|smart_res_relative_path|resource_origin_slug|"
           "related_preset_slug|related_slug|related_template_slug|real_id"},
          {"group", "pack_info|extension_info|related_res_list|user_string"},
      },
      false,
      true,
      makeResource,
      nullptr,
  };
  return form;
}

const Form& stockRecordForm() {
  static const Form form = {
      "record-stock",
      "record of a stock item",
      "A stock provider's record, of which the id alone is read.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A record.",
           "a stock record is an object", Look::none, Members::ofAProvider},
          {"id", Type::integerOrText, Missing::refused, Effect::refused,
           "The provider's id; a text is reduced to the sum of its bytes.",
           "a stock record without an id is refused", Look::stockId},
      },
      {},
      false,
      true,
      makeResource,
      nullptr,
  };
  return form;
}

const Form& namedStockRecordForm() {
  static const Form form = {
      "record-giphy",
      "record of a giphy item",
      "A giphy record, of which the id and the slug are read.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A record.",
           "a giphy record is an object", Look::none, Members::ofAProvider},
          {"id", Type::integerOrText, Missing::refused, Effect::refused,
           "The provider's id; a text is reduced to the sum of its bytes.",
           "a giphy record without an id is refused", Look::stockId},
          {"slug", Type::text, Missing::refused, Effect::refused,
           "Becomes the slug, behind \"giphy/\".", "a giphy record without a slug is refused",
           Look::propertyText},
      },
      {},
      false,
      true,
      makeResource,
      nullptr,
  };
  return form;
}

const Form& vcgRecordForm() {
  static const Form form = {
      "record-vcg",
      "record of the VCG library",
      "A record of the VCG library, of which three members are read.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A record.",
           "a VCG record is an object", Look::none, Members::ofAProvider},
          {"res_id", Type::integer64, Missing::refused, Effect::refused,
           "The id, 1 or more; the slug is made of it.", "a VCG record without an id is refused"},
          {"res_type", Type::integer64, Missing::refused, Effect::refused,
           "The kind of medium, which is no resource type; the slug is made of it.",
           "a VCG record without a kind of medium is refused"},
          {"status", Type::integer64, Missing::fine, Effect::ignored, "Its state.",
           "the property is not held"},
      },
      {},
      false,
      true,
      makeResource,
      nullptr,
  };
  return form;
}

}  // namespace

const Form& recordForm(int completeType) {
  if (completeType == kVcgLibrary) return vcgRecordForm();
  if (completeType >= 106 && completeType <= 109) return namedStockRecordForm();
  if (isStock(completeType)) return stockRecordForm();
  return ownRecordForm();
}

}  // namespace kydata::check
