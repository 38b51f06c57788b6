#include "itemdata/ListSelect.h"

#include "host/entity/InvoiceItem.h"

namespace Brontel::Plugin::ItemData {

const char* settingsSelect(int goodsKind) {
  switch (goodsKind) {
    case GOODS_PRODUCT:
      return "select type,null,t_itemvariable_1,name,mandatory,process,vvalue from t_productitemdata join "
             "t_itemvariable "
             "on  t_itemvariable_1= t_itemvariable_id where direction=%direction and t_product_1=%id order by process, "
             "position";
    case GOODS_SERVICE:
      return "select type,null,t_itemvariable_1,name,mandatory,process,vvalue from t_serviceitemdata join "
             "t_itemvariable "
             "on  t_itemvariable_1= t_itemvariable_id where direction=%direction and t_service_1=%id order by process, "
             "position";
    case GOODS_SUITE:
      return "select type,null,t_itemvariable_1,name,mandatory,process,vvalue from t_suiteitemdata join t_itemvariable "
             "on  t_itemvariable_1= t_itemvariable_id where direction=%direction and t_suite_1=%id order by process, "
             "position";
    default:
      return nullptr;
  }
}

const char* const kStoredCells =
    "select type,t_invoiceitemdata_id,t_itemvariable_1,name,mandatory,row,value from t_invoiceitemdata left join "
    "t_itemvariable on t_itemvariable_1=t_itemvariable_id where t_invoiceitem_1=%id order by row, t_invoiceitemdata_id";

const char* const kDerivedCells =
    "select type,0,t_itemvariable_1,name,mandatory,row,value from t_invoiceitemdata left join t_itemvariable on "
    "t_itemvariable_1=t_itemvariable_id where t_invoiceitem_1=%id order by row, t_invoiceitemdata_id";

}  // namespace Brontel::Plugin::ItemData
