#include "tests/plugin/SampleGoods.h"

#include "host/database/MorvaneDatabase.h"

bool SampleGoods::store(MorvaneDatabase& database) {
  const char* const statements[] = {
      "insert into t_product (t_product_id, name, unit) values (1,'Kanapé','db'), (2,'Szög','kg'), (3,'Szék','db')",
      "insert into t_service (t_service_id, name, unit) values (1,'Szerelés','óra')",
      "insert into t_suite (t_suite_id, name, unit) values (1,'Garnitúra','készlet')",
      "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
      "(11,'Megjegyzés',1,0,1,''), (12,'Sarzs',1,1,1,''), (13,'Szín',3,1,0,'piros,kék'), (14,'Garancia',2,0,0,'')",
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values "
      "(1,11,1,100), (1,12,1,100), (1,13,2,100), (1,12,1,200), (3,11,1,100), (3,14,2,100)",
      "insert into t_serviceitemdata (t_service_1, t_itemvariable_1, position, direction) values (1,14,1,100)",
      "insert into t_suiteitemdata (t_suite_1, t_itemvariable_1, position, direction) values (1,12,1,100)"};
  bool done = true;
  for (const char* statement : statements) done = database.run(statement) && done;
  return done;
}
