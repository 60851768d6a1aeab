// Texts of each form: the sample texts, small ones, and one that is as long as wanted.

#ifndef KYDATASTRUCTURE_TESTS_OOM_INPUTS_H_
#define KYDATASTRUCTURE_TESTS_OOM_INPUTS_H_

#include <string>
#include <vector>

namespace oom {

struct Input {
  std::string name;
  std::string text;
  int infoType = 0;  // of a complete form
};

std::vector<Input> normalForms();
std::vector<Input> completeForms();
std::vector<Input> cutReplies();
std::vector<Input> reports();
std::vector<Input> storyboards();
std::vector<Input> parameterMaps();

// A normal form with so many related entries.
std::string descriptionWithRelated(int entries);

}  // namespace oom

#endif  // KYDATASTRUCTURE_TESTS_OOM_INPUTS_H_
