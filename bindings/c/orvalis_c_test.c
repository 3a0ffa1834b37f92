/* The C interface as a C host uses it: one civil servant's month of March 2024, then misuse.
** Compiled as C99. Prints one line per failure and closes on "N passed, N failed". */
#include <math.h>
#include <stdio.h>
#include <string.h>

#include "orvalis/orvalis.h"

static int passed, failed;

#define CHECK(cond)                                                    \
  do {                                                                 \
    if (cond) {                                                        \
      ++passed;                                                        \
    } else {                                                           \
      ++failed;                                                        \
      fprintf(stderr, "%s:%d: failed: %s\n", __FILE__, __LINE__, #cond); \
    }                                                                  \
  } while (0)

#define CHECK_CODE(expr, code)                                                         \
  do {                                                                                 \
    int rc_ = (expr);                                                                  \
    if (rc_ == (code)) {                                                               \
      ++passed;                                                                        \
    } else {                                                                           \
      ++failed;                                                                        \
      fprintf(stderr, "%s:%d: %s gave %s, expected %s (%s)\n", __FILE__, __LINE__, #expr, \
              orvalis_errstr(rc_), orvalis_errstr(code), orvalis_errmsg(NULL));        \
    }                                                                                  \
  } while (0)

#define CHECK_OK(expr) CHECK_CODE(expr, ORVALIS_OK)
/* Amounts to the cent, and rates to the ten-thousandth. */
#define CHECK_AMOUNT(value, expected) CHECK(fabs((value) - (expected)) < 0.000001)

static orvalis_recordset *table(const char *const *columns, int n) {
  orvalis_recordset *rs = NULL;
  CHECK_OK(orvalis_recordset_new(columns, n, &rs));
  return rs;
}

static void rate(orvalis_recordset *rs, double id, const char *code, double employee, double employer) {
  CHECK_OK(orvalis_recordset_add_row(rs));
  CHECK_OK(orvalis_recordset_set_double(rs, "IdTaux", id));
  CHECK_OK(orvalis_recordset_set_text(rs, "CodeTaux", code));
  CHECK_OK(orvalis_recordset_set_double(rs, "PartSalariale", employee));
  CHECK_OK(orvalis_recordset_set_double(rs, "PartPatronale", employer));
}

static void total(orvalis_recordset *rs, double id, const char *code, double employee) {
  CHECK_OK(orvalis_recordset_add_row(rs));
  CHECK_OK(orvalis_recordset_set_double(rs, "Idcumul", id));
  CHECK_OK(orvalis_recordset_set_text(rs, "CodeCumul", code));
  CHECK_OK(orvalis_recordset_set_double(rs, "PartSalariale", employee));
  CHECK_OK(orvalis_recordset_set_double(rs, "PartPatronale", 0));
}

static orvalis_engine *engine_of_march(void) {
  static const char *const fixed_cols[] = {"Point", "PlafSecu", "SmicHor", "HrsMois",
                                           "IndMinRemuneration", "IndResid"};
  static const char *const const_cols[] = {"IdConstante", "CodeConstante", "Valeur", "TauxMontant"};
  static const char *const rate_cols[] = {"IdTaux", "IdOrganisme", "CodeTaux", "PartSalariale",
                                          "PartPatronale"};
  static const char *const total_cols[] = {"Idcumul", "CodeCumul", "PartSalariale", "PartPatronale"};
  orvalis_engine *e = NULL;
  orvalis_recordset *fixed, *constants, *rates, *totals;
  CHECK_OK(orvalis_engine_new("MethodeCalculG_Nouv", &e));
  CHECK_OK(orvalis_engine_set_period(e, "01/03/2024"));

  fixed = table(fixed_cols, 6);
  CHECK_OK(orvalis_recordset_add_row(fixed));
  CHECK_OK(orvalis_recordset_set_double(fixed, "Point", 4.92278));
  CHECK_OK(orvalis_recordset_set_double(fixed, "PlafSecu", 3864));
  CHECK_OK(orvalis_recordset_set_double(fixed, "SmicHor", 11.65));
  CHECK_OK(orvalis_recordset_set_double(fixed, "HrsMois", 151.67));
  CHECK_OK(orvalis_recordset_set_double(fixed, "IndMinRemuneration", 366));
  CHECK_OK(orvalis_recordset_set_double(fixed, "IndResid", 3));
  CHECK_OK(orvalis_recordset_rewind(fixed));
  CHECK_OK(orvalis_engine_set_source(e, "gRsConstantesFixes", fixed));

  constants = table(const_cols, 4);
  CHECK_OK(orvalis_recordset_add_row(constants));
  CHECK_OK(orvalis_recordset_set_double(constants, "IdConstante", 21));
  CHECK_OK(orvalis_recordset_set_text(constants, "CodeConstante", "PARTTRANSP"));
  CHECK_OK(orvalis_recordset_set_double(constants, "Valeur", 43.2));
  CHECK_OK(orvalis_recordset_set_text(constants, "TauxMontant", "M"));
  CHECK_OK(orvalis_engine_set_source(e, "gRsConstantes", constants));

  rates = table(rate_cols, 5);
  rate(rates, 1, "CNRACL", 11.1, 30.65);
  rate(rates, 2, "RAFP", 5, 5);
  rate(rates, 3, "URSDCSG", 6.8, 0);
  CHECK_OK(orvalis_engine_set_source(e, "gRsTaux", rates));

  totals = table(total_cols, 4);
  total(totals, 1, "BASE", 2067.56);
  total(totals, 4, "ASSCNRACL", 2067.56);
  total(totals, 5, "ASSRAFP", 120);
  total(totals, 6, "ASSCSG", 2149.28);
  CHECK_OK(orvalis_engine_set_source(e, "gRsCumuls", totals));

  /* The engine holds its own share: the caller's handles may go. */
  CHECK_OK(orvalis_recordset_free(fixed));
  CHECK_OK(orvalis_recordset_free(constants));
  CHECK_OK(orvalis_recordset_free(rates));
  CHECK_OK(orvalis_recordset_free(totals));
  return e;
}

static orvalis_employee *civil_servant(void) {
  orvalis_employee *s = NULL;
  CHECK_OK(orvalis_employee_new(&s));
  CHECK_OK(orvalis_employee_set_int(s, "lIdSalarie", 1042));
  CHECK_OK(orvalis_employee_set_text(s, "sTypeModele", "INDTIT"));
  CHECK_OK(orvalis_employee_set_text(s, "sCodeCategorie", "C"));
  CHECK_OK(orvalis_employee_set_bool(s, "bRegineFonctionnaire", 1));
  CHECK_OK(orvalis_employee_set_int(s, "iEnfant_ACharge", 2));
  CHECK_OK(orvalis_employee_set_text(s, "sDateDebut", "01/09/2015"));
  CHECK_OK(orvalis_employee_set_text(s, "sOccupationPoste", "C"));
  CHECK_OK(orvalis_employee_set_int(s, "iTypeCalculHeure", 1));
  CHECK_OK(orvalis_employee_set_double(s, "dHeuresHebdo", 35));
  CHECK_OK(orvalis_employee_set_double(s, "dHeuresMois", 151.67));
  CHECK_OK(orvalis_employee_set_double(s, "dDureeHebdoLegale", 35));
  CHECK_OK(orvalis_employee_set_double(s, "dTauxPoste", 100));
  CHECK_OK(orvalis_employee_set_text(s, "sDateChangementHeures", "01/09/2015"));
  CHECK_OK(orvalis_employee_set_text(s, "sDateChangementIndice", "01/01/2023"));
  CHECK_OK(orvalis_employee_set_text(s, "sDateMajIndiceReglementaire", "01/01/2100"));
  CHECK_OK(orvalis_employee_set_double(s, "dIndiceMajoreM", 420));
  CHECK_OK(orvalis_employee_set_double(s, "dIndiceMajoreA", 420));
  return s;
}

static orvalis_line *line_of(const char *base, long long rate_id, int employer) {
  orvalis_line *l = NULL;
  CHECK_OK(orvalis_line_new(&l));
  CHECK_OK(orvalis_line_set_text(l, "sValeurBase", base));
  CHECK_OK(orvalis_line_set_int(l, "lIdTaux", rate_id));
  CHECK_OK(orvalis_line_set_text(l, "sValeurTauxSalarial", "TAUX DE COTISATION DE L'ORGANISME"));
  if (employer)
    CHECK_OK(orvalis_line_set_text(l, "sValeurTauxPatronal", "TAUX DE COTISATION DE L'ORGANISME"));
  return l;
}

static void test_month(void) {
  orvalis_engine *e = engine_of_march();
  orvalis_employee *s = civil_servant();
  orvalis_line *l;
  double d = 0;
  long long days = 0;
  const char *json = NULL;

  CHECK_OK(orvalis_prepare(e, "COEFFICIENT_INDICE", s));
  CHECK_OK(orvalis_prepare(e, "COEFFICIENT_TRAITEMENT", s));
  CHECK_OK(orvalis_prepare(e, "NBRE_JOUR_PRESENCE", s));
  CHECK_OK(orvalis_employee_get_int(s, "iNBJ_Presence_Total", &days));
  CHECK(days == 30);
  CHECK_OK(orvalis_employee_get_double(s, "dCoefficient_TraitementTN", &d));
  CHECK_AMOUNT(d, 1);
  /* A name the engine does not know does nothing. */
  CHECK_OK(orvalis_prepare(e, "NO SUCH PREPARATION", s));

  /* The fixed transport allowance: the constant 21, 43.20 a month. */
  CHECK_OK(orvalis_line_new(&l));
  CHECK_OK(orvalis_line_set_text(l, "sValeurBase", "UNE CONSTANTE"));
  CHECK_OK(orvalis_line_set_int(l, "lIdValeurBase", 21));
  CHECK_OK(orvalis_calculate(e, "MONTANT FIXE", s, l, NULL, NULL, NULL));
  CHECK_OK(orvalis_line_get_double(l, "dMontantSalarial", &d));
  CHECK_AMOUNT(d, 43.2);
  CHECK_OK(orvalis_line_free(l));

  /* CNRACL: 2067.56 x 11.10 % = 229.49916 and 30.65 % = 633.70714. */
  l = line_of("BASE CNRACL", 1, 1);
  CHECK_OK(orvalis_calculate(e, "BASE x TAUX", s, l, NULL, NULL, NULL));
  CHECK_OK(orvalis_line_get_double(l, "dBase", &d));
  CHECK_AMOUNT(d, 2067.56);
  CHECK_OK(orvalis_line_get_double(l, "dTauxSalarial", &d));
  CHECK_AMOUNT(d, 11.1);
  CHECK_OK(orvalis_line_get_double(l, "dMontantSalarial", &d));
  CHECK_AMOUNT(d, 229.49916);
  CHECK_OK(orvalis_line_get_double(l, "dMontantPatronal", &d));
  CHECK_AMOUNT(d, 633.70714);
  CHECK_OK(orvalis_line_free(l));

  /* RAFP on the 120.00 of bonus: 5 % each side. */
  l = line_of("BASE RAFP", 2, 1);
  CHECK_OK(orvalis_calculate(e, "BASE x TAUX", s, l, NULL, NULL, NULL));
  CHECK_OK(orvalis_line_get_double(l, "dMontantSalarial", &d));
  CHECK_AMOUNT(d, 6);
  CHECK_OK(orvalis_line_get_double(l, "dMontantPatronal", &d));
  CHECK_AMOUNT(d, 6);
  CHECK_OK(orvalis_line_free(l));

  /* Deductible CSG: 2149.28 x 6.8 % = 146.15104. */
  l = line_of("BASE CSG/RDS", 3, 0);
  CHECK_OK(orvalis_calculate(e, "BASE x TAUX", s, l, NULL, NULL, NULL));
  CHECK_OK(orvalis_line_get_double(l, "dMontantSalarial", &d));
  CHECK_AMOUNT(d, 146.15104);
  CHECK_OK(orvalis_line_free(l));

  /* Operations through the same table as case files. */
  CHECK_OK(orvalis_call(e, "Arrondi", "[229.49916, 2]", NULL, NULL, &json));
  CHECK(json != NULL && strcmp(json, "{\"result\": 229.5, \"out\": []}") == 0);
  CHECK_OK(orvalis_call(e, "dRechercheValeurTaux", "[\"CNRACL\"]", NULL, NULL, &json));
  CHECK(json != NULL && strcmp(json, "{\"result\": 11.1, \"out\": []}") == 0);
  CHECK_OK(orvalis_call(e, "iNbJoursBase30", "[\"01/02/2024\", \"29/02/2024\"]", NULL, NULL, &json));
  CHECK(json != NULL && strcmp(json, "{\"result\": 30, \"out\": []}") == 0);

  CHECK_OK(orvalis_employee_free(s));
  CHECK_OK(orvalis_engine_free(e));
}

static void test_fault_gives_false_and_keeps_the_records(void) {
  orvalis_engine *e = NULL;
  orvalis_employee *s = NULL;
  orvalis_line *l = NULL;
  double d = 0;
  CHECK_OK(orvalis_engine_new("MethodeCalculG_Nouv", &e));
  CHECK_OK(orvalis_engine_set_period(e, "01/03/2024"));
  CHECK_OK(orvalis_employee_new(&s));
  CHECK_OK(orvalis_line_new(&l));
  /* No source of rates: the lookup faults, the entry gives false. */
  CHECK_OK(orvalis_engine_set_source(e, "gRsTaux", NULL));
  CHECK_OK(orvalis_line_set_double(l, "dBase", 12.5));
  CHECK_OK(orvalis_line_set_text(l, "sValeurTauxSalarial", "TAUX DE COTISATION DE L'ORGANISME"));
  CHECK_OK(orvalis_line_set_int(l, "lIdTaux", 1));
  CHECK_CODE(orvalis_calculate(e, "BASE x TAUX", s, l, NULL, NULL, NULL), ORVALIS_FAULT);
  CHECK(strstr(orvalis_errmsg(e), "returned false") != NULL);
  CHECK_OK(orvalis_line_get_double(l, "dBase", &d));
  CHECK_AMOUNT(d, 0); /* the base was written before the fault */
  /* A direct call that faults says why. */
  CHECK_CODE(orvalis_call(e, "dRechercheValeurTaux", "[\"CNRACL\"]", NULL, NULL, NULL), ORVALIS_MISUSE);
  {
    const char *json = "unchanged";
    CHECK_CODE(orvalis_call(e, "dRechercheValeurTaux", "[\"CNRACL\"]", NULL, NULL, &json), ORVALIS_FAULT);
    CHECK(json == NULL);
    CHECK(strlen(orvalis_errmsg(e)) > 0);
  }
  CHECK_OK(orvalis_line_free(l));
  CHECK_OK(orvalis_employee_free(s));
  CHECK_OK(orvalis_engine_free(e));
}

static int messages_seen;
static char last_message[256];
static void on_message(void *user, const char *text) {
  ++*(int *)user;
  strncpy(last_message, text, sizeof last_message - 1);
}

static void test_fields_and_properties(void) {
  orvalis_engine *e = NULL;
  orvalis_employee *s = NULL;
  orvalis_recordset *rs = NULL, *back = NULL;
  long long i = 0;
  int n = 0, type = 0, b = 0;
  const char *text = NULL;
  double d = 0;
  static const char *const cols[] = {"Code", "Valeur", "Actif"};

  CHECK(strcmp(orvalis_libversion(), ORVALIS_VERSION) == 0);
  CHECK(orvalis_libversion_number() == ORVALIS_VERSION_NUMBER);

  CHECK_OK(orvalis_employee_new(&s));
  /* 16-bit field: the bounds are kept, one beyond is ORVALIS_RANGE. */
  CHECK_OK(orvalis_employee_set_int(s, "iEnfant_ACharge", 32767));
  CHECK_OK(orvalis_employee_get_int(s, "iEnfant_ACharge", &i));
  CHECK(i == 32767);
  CHECK_CODE(orvalis_employee_set_int(s, "iEnfant_ACharge", 32768), ORVALIS_RANGE);
  CHECK_CODE(orvalis_employee_set_int(s, "iEnfant_ACharge", -32769), ORVALIS_RANGE);
  CHECK(strstr(orvalis_errmsg(s), "out of range") != NULL);
  /* 32-bit field. */
  CHECK_OK(orvalis_employee_set_int(s, "lIdSalarie", -2147483647LL - 1));
  CHECK_CODE(orvalis_employee_set_int(s, "lIdSalarie", 2147483648LL), ORVALIS_RANGE);
  /* Unknown field, wrong type. */
  CHECK_CODE(orvalis_employee_set_double(s, "dIndiceMajore", 1), ORVALIS_NOTFOUND);
  CHECK(strcmp(orvalis_errmsg(s), "VarCalculSalarie has no field 'dIndiceMajore'") == 0);
  CHECK_CODE(orvalis_employee_set_text(s, "dIndiceMajoreM", "400"), ORVALIS_TYPE);
  CHECK_CODE(orvalis_employee_get_int(s, "sTypeModele", &i), ORVALIS_TYPE);
  CHECK_OK(orvalis_employee_set_text(s, "sTypeModele", "INDTIT"));
  CHECK_OK(orvalis_employee_get_text(s, "sTypeModele", &text));
  CHECK(strcmp(text, "INDTIT") == 0);
  CHECK(strcmp(orvalis_errmsg(s), "ok") == 0);

  /* The field tables. */
  CHECK_OK(orvalis_field_count(ORVALIS_EMPLOYEE, &n));
  CHECK(n > 400);
  CHECK_OK(orvalis_field_info(ORVALIS_EMPLOYEE, 0, &text, &type));
  CHECK(strcmp(text, "lIdSalarie") == 0 && type == ORVALIS_T_INT32);
  CHECK_CODE(orvalis_field_info(ORVALIS_EMPLOYEE, n, &text, &type), ORVALIS_RANGE);
  CHECK_CODE(orvalis_field_count(9, &n), ORVALIS_MISUSE);

  /* A recordset field is shared: a row added through the handle is seen in the record. */
  CHECK_OK(orvalis_recordset_new(cols, 3, &rs));
  CHECK_OK(orvalis_employee_set_recordset(s, "rsSituationsExceptionnelles", rs));
  CHECK_OK(orvalis_recordset_add_row(rs));
  CHECK_OK(orvalis_recordset_set_text(rs, "CODE", "A"));
  CHECK_OK(orvalis_recordset_set_double(rs, "Valeur", 2.5));
  CHECK_OK(orvalis_recordset_set_bool(rs, "Actif", 1));
  CHECK_CODE(orvalis_recordset_set_double(rs, "Manque", 1), ORVALIS_NOTFOUND);
  CHECK_OK(orvalis_employee_get_recordset(s, "rsSituationsExceptionnelles", &back));
  CHECK(back != NULL);
  CHECK_OK(orvalis_recordset_row_count(back, &n));
  CHECK(n == 1);
  CHECK_OK(orvalis_recordset_column_name(back, 1, &text));
  CHECK(strcmp(text, "Valeur") == 0);
  CHECK_OK(orvalis_recordset_get_double(back, 0, 1, &d));
  CHECK_AMOUNT(d, 2.5);
  CHECK_OK(orvalis_recordset_get_text(back, 0, 0, &text));
  CHECK(strcmp(text, "A") == 0);
  CHECK_OK(orvalis_recordset_get_bool(back, 0, 2, &b));
  CHECK(b == 1);
  CHECK_OK(orvalis_recordset_cell_type(back, 0, 0, &type));
  CHECK(type == ORVALIS_T_TEXT);
  CHECK_CODE(orvalis_recordset_get_double(back, 0, 0, &d), ORVALIS_TYPE);
  CHECK_CODE(orvalis_recordset_get_double(back, 1, 0, &d), ORVALIS_RANGE);
  CHECK_OK(orvalis_recordset_free(back));
  CHECK_OK(orvalis_recordset_free(rs));
  /* An empty recordset field reads as null. */
  CHECK_OK(orvalis_employee_set_recordset(s, "rsSituationsExceptionnelles", NULL));
  back = (orvalis_recordset *)1;
  CHECK_OK(orvalis_employee_get_recordset(s, "rsSituationsExceptionnelles", &back));
  CHECK(back == NULL);
  CHECK_OK(orvalis_employee_free(s));

  /* Engine properties of each class. */
  CHECK_OK(orvalis_engine_new("MethodeCalculG", &e));
  CHECK_OK(orvalis_engine_class(e, &text));
  CHECK(strcmp(text, "MethodeCalculG") == 0);
  CHECK_CODE(orvalis_engine_set_source(e, "gRsBaremeTauxPAS", NULL), ORVALIS_NOTFOUND);
  CHECK_CODE(orvalis_engine_set_source(e, "gRsTauxx", NULL), ORVALIS_NOTFOUND);
  CHECK_CODE(orvalis_call(e, "CalculPrelevementALaSource_Taux", "[]", NULL, NULL, &text), ORVALIS_NOTFOUND);
  CHECK(strcmp(orvalis_errmsg(e), "MethodeCalculG has no operation 'CalculPrelevementALaSource_Taux'") == 0);
  CHECK_OK(orvalis_engine_set_smic(e, 1766.92));
  CHECK_OK(orvalis_engine_get_smic(e, &d));
  CHECK_AMOUNT(d, 1766.92);
  CHECK_OK(orvalis_engine_free(e));
  CHECK_CODE(orvalis_engine_new("MethodeCalculG_Nouveau", &e), ORVALIS_NOTFOUND);
  CHECK(e == NULL);

  /* The message box reaches the callback; without one the texts are kept. */
  CHECK_OK(orvalis_engine_new("MethodeCalculG_Nouv", &e));
  CHECK_OK(orvalis_engine_message_count(e, &n));
  CHECK(n == 0);
  CHECK_OK(orvalis_engine_set_message_handler(e, on_message, &messages_seen));
  CHECK_OK(orvalis_operation_count(e, &n));
  CHECK(n > 50);
  CHECK_OK(orvalis_operation_info(e, 0, &text, NULL));
  CHECK(strlen(text) > 0);
  CHECK_OK(orvalis_engine_free(e));
}

static void test_misuse(void) {
  orvalis_engine *e = NULL;
  orvalis_employee *s = NULL;
  orvalis_line *l = NULL;
  orvalis_recordset *rs = NULL;
  double d = 0;
  const char *text = NULL;
  static const char *const twice[] = {"Code", "CODE"};

  /* Null handles and null arguments. */
  CHECK_CODE(orvalis_engine_set_period(NULL, "01/03/2024"), ORVALIS_MISUSE);
  CHECK(strcmp(orvalis_errmsg(NULL), "null orvalis_engine") == 0);
  CHECK_CODE(orvalis_prepare(NULL, "COEFFICIENT_INDICE", NULL), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_employee_get_double(NULL, "dBase", &d), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_engine_new(NULL, &e), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_engine_new("MethodeCalculG_Nouv", NULL), ORVALIS_MISUSE);
  CHECK_OK(orvalis_engine_new("MethodeCalculG_Nouv", &e));
  CHECK_CODE(orvalis_prepare(e, "COEFFICIENT_INDICE", NULL), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_engine_set_period(e, NULL), ORVALIS_MISUSE);
  CHECK_OK(orvalis_employee_new(&s));
  CHECK_CODE(orvalis_employee_get_double(s, "dIndiceMajoreM", NULL), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_calculate(e, "BASE x TAUX", s, NULL, NULL, NULL, NULL), ORVALIS_MISUSE);

  /* A handle of another kind. */
  CHECK_CODE(orvalis_employee_set_double((orvalis_employee *)e, "dBase", 1), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_engine_free((orvalis_engine *)s), ORVALIS_MISUSE);

  /* Freed handles, while their addresses are not reused. */
  CHECK_OK(orvalis_line_new(&l));
  CHECK_OK(orvalis_line_free(l));
  CHECK_CODE(orvalis_line_set_double(l, "dBase", 1), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_line_free(l), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_calculate(e, "BASE x TAUX", s, l, NULL, NULL, NULL), ORVALIS_MISUSE);
  CHECK(strcmp(orvalis_errmsg(e), "not a live orvalis_line") == 0);

  /* Recordsets built wrong. */
  CHECK_CODE(orvalis_recordset_new(twice, 2, &rs), ORVALIS_MISUSE);
  CHECK(rs == NULL);
  CHECK_CODE(orvalis_recordset_new(NULL, 1, &rs), ORVALIS_MISUSE);
  CHECK_CODE(orvalis_recordset_new(twice, -1, &rs), ORVALIS_MISUSE);
  CHECK_OK(orvalis_recordset_new(twice, 1, &rs));
  CHECK_CODE(orvalis_recordset_set_text(rs, "Code", "A"), ORVALIS_MISUSE); /* no row yet */
  CHECK_CODE(orvalis_recordset_column_name(rs, 1, &text), ORVALIS_RANGE);
  CHECK_OK(orvalis_recordset_free(rs));

  /* Operations: unknown, arguments unreadable, a wrong count. */
  CHECK_CODE(orvalis_call(e, "Arrondir", "[1, 2]", NULL, NULL, &text), ORVALIS_NOTFOUND);
  CHECK_CODE(orvalis_call(e, "Arrondi", "[1, ", NULL, NULL, &text), ORVALIS_ERROR);
  CHECK_CODE(orvalis_call(e, "Arrondi", "[1]", NULL, NULL, &text), ORVALIS_ERROR);
  CHECK(strstr(orvalis_errmsg(e), "takes 2 arguments, got 1") != NULL);
  CHECK_CODE(orvalis_call(e, "Arrondi", "[1, 70000]", NULL, NULL, &text), ORVALIS_ERROR);
  CHECK_CODE(orvalis_call(e, "CalculNombreJourPresence", "[\"$salarie\"]", NULL, NULL, &text),
             ORVALIS_MISUSE);

  /* A case file through the same runner as `orvalis run`. */
  {
    char *out = NULL;
    CHECK_OK(orvalis_run_case("{\"steps\": [{\"call\": \"Arrondi\", \"args\": [2.675, 2]}]}", &out));
    CHECK(out != NULL && strstr(out, "{\"result\": 2.68, \"out\": []}") != NULL);
    orvalis_free_text(out);
    out = NULL;
    CHECK_CODE(orvalis_run_case("{\"salarie\": {\"dBasee\": 1}}", &out), ORVALIS_ERROR);
    CHECK(out == NULL);
    CHECK(strcmp(orvalis_errmsg(NULL), "salarie.dBasee: VarCalculSalarie has no field 'dBasee'") == 0);
  }

  CHECK_OK(orvalis_employee_free(s));
  CHECK_OK(orvalis_engine_free(e));
  CHECK_CODE(orvalis_engine_free(e), ORVALIS_MISUSE);
}

int main(void) {
  test_month();
  test_fault_gives_false_and_keeps_the_records();
  test_fields_and_properties();
  test_misuse();
  printf("%d passed, %d failed\n", passed, failed);
  return failed == 0 ? 0 : 1;
}
