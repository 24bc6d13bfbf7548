#include "tools/export/Workbook.h"

#include "tools/system/Failure.h"

#include <cerrno>
#include <cstdint>
#include <xlsxwriter.h>

namespace LagomareTools {

namespace {

lxw_workbook* newWorkbook(const std::filesystem::path& file) {
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  lxw_workbook* const workbook = workbook_new_opt(file.u8string().c_str(), &options);
  if (workbook == nullptr)
    throw Failure("cannot write the workbook: out of memory");
  return workbook;
}

lxw_format* headFormat(lxw_workbook* workbook, lxw_format_alignments alignment) {
  lxw_format* const format = workbook_add_format(workbook);
  format_set_bold(format);
  format_set_text_wrap(format);
  format_set_align(format, static_cast<std::uint8_t>(alignment));
  format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
  return format;
}

lxw_format* monthFormat(lxw_workbook* workbook) {
  lxw_format* const format = workbook_add_format(workbook);
  format_set_num_format(format, "yyyy-mm");
  format_set_align(format, LXW_ALIGN_LEFT);
  return format;
}

} // namespace

Workbook::Workbook(const std::filesystem::path& file)
    : workbook_(newWorkbook(file)), formats_{headFormat(workbook_, LXW_ALIGN_LEFT),
                                             headFormat(workbook_, LXW_ALIGN_RIGHT), monthFormat(workbook_)} {}

Workbook::~Workbook() {
  if (workbook_ != nullptr)
    lxw_workbook_free(workbook_);
}

Sheet& Workbook::addSheet(const std::string& name) {
  lxw_worksheet* const sheet = workbook_add_worksheet(workbook_, name.c_str());
  if (sheet == nullptr)
    throw Failure("cannot make the workbook's sheet " + name);
  return sheets_.emplace_back(sheet, formats_);
}

void Workbook::save() {
  for (Sheet& sheet : sheets_)
    sheet.finish();
  errno = 0;
  const lxw_error error = workbook_close(workbook_);
  workbook_ = nullptr;
  if (error != LXW_NO_ERROR)
    throw Failure("cannot write the workbook: " +
                  (error == LXW_ERROR_ZIP_FILE_OPERATION && errno != 0 ? systemText(errno) : lxw_strerror(error)));
}

} // namespace LagomareTools
