/* A host in C built with pkg-config: the CNRACL line of one civil servant's March 2024. */
#include <math.h>
#include <stdio.h>

#include <orvalis/orvalis.h>

int main(void) {
  static const char *const cols[] = {"IdTaux", "CodeTaux", "PartSalariale", "PartPatronale"};
  static const char *const totals[] = {"Idcumul", "CodeCumul", "PartSalariale", "PartPatronale"};
  orvalis_engine *e = NULL;
  orvalis_recordset *taux = NULL, *cumuls = NULL;
  orvalis_employee *s = NULL;
  orvalis_line *l = NULL;
  double employee = 0, employer = 0;
  int rc = 0;

  rc |= orvalis_engine_new("MethodeCalculG_Nouv", &e);
  rc |= orvalis_engine_set_period(e, "01/03/2024");
  rc |= orvalis_recordset_new(cols, 4, &taux);
  rc |= orvalis_recordset_add_row(taux);
  rc |= orvalis_recordset_set_double(taux, "IdTaux", 1);
  rc |= orvalis_recordset_set_text(taux, "CodeTaux", "CNRACL");
  rc |= orvalis_recordset_set_double(taux, "PartSalariale", 11.1);
  rc |= orvalis_recordset_set_double(taux, "PartPatronale", 30.65);
  rc |= orvalis_engine_set_source(e, "gRsTaux", taux);
  rc |= orvalis_recordset_new(totals, 4, &cumuls);
  rc |= orvalis_recordset_add_row(cumuls);
  rc |= orvalis_recordset_set_double(cumuls, "Idcumul", 4);
  rc |= orvalis_recordset_set_text(cumuls, "CodeCumul", "ASSCNRACL");
  rc |= orvalis_recordset_set_double(cumuls, "PartSalariale", 2067.56);
  rc |= orvalis_recordset_set_double(cumuls, "PartPatronale", 0);
  rc |= orvalis_engine_set_source(e, "gRsCumuls", cumuls);
  rc |= orvalis_employee_new(&s);
  rc |= orvalis_employee_set_text(s, "sTypeModele", "INDTIT");
  rc |= orvalis_line_new(&l);
  rc |= orvalis_line_set_text(l, "sValeurBase", "BASE CNRACL");
  rc |= orvalis_line_set_int(l, "lIdTaux", 1);
  rc |= orvalis_line_set_text(l, "sValeurTauxSalarial", "TAUX DE COTISATION DE L'ORGANISME");
  rc |= orvalis_line_set_text(l, "sValeurTauxPatronal", "TAUX DE COTISATION DE L'ORGANISME");
  rc |= orvalis_calculate(e, "BASE x TAUX", s, l, NULL, NULL, NULL);
  rc |= orvalis_line_get_double(l, "dMontantSalarial", &employee);
  rc |= orvalis_line_get_double(l, "dMontantPatronal", &employer);
  printf("%s CNRACL %.5f / %.5f (%s)\n", orvalis_libversion(), employee, employer, orvalis_errmsg(e));
  orvalis_line_free(l);
  orvalis_employee_free(s);
  orvalis_recordset_free(taux);
  orvalis_recordset_free(cumuls);
  orvalis_engine_free(e);
  return rc == 0 && fabs(employee - 229.49916) < 1e-6 && fabs(employer - 633.70714) < 1e-6 ? 0 : 1;
}
